// How far readers agree, compared with figures worked out by hand and with slow, obvious versions.
#include "companion/agreement.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <random>
#include <set>
#include <sstream>
#include <string>

#include "companion/command_line.h"
#include "support/scenario_folder.h"

namespace quill::companion {
namespace {

constexpr std::size_t kClass = 0;

Judgement Says(Position begin, Position end, Label label = kNotGiven, Referred reference = {}) {
  return {{begin, end}, {label, kNotGiven, kNotGiven, kNotGiven, kNotGiven}, reference};
}

Referred At(Position begin, Position end) { return {true, Range{begin, end}}; }

Matches PairsUpTo(std::size_t count) {
  Matches matches;
  for (std::size_t i = 0; i < count; ++i) matches.emplace_back(i, i);
  return matches;
}

TEST(Agreement, OverlappingSpansArePairedOneToOne) {
  struct Case {
    const char* about;
    Reading a, b;
    Matches expected;
  };
  const Case cases[] = {
      {"most shared first", {Says(0, 10)}, {Says(0, 3), Says(4, 10)}, {{0, 1}}},
      {"as much shared: the earlier", {Says(0, 6)}, {Says(0, 3), Says(3, 6)}, {{0, 0}}},
      {"a pair taken frees nobody", {Says(0, 4), Says(2, 9)}, {Says(0, 9)}, {{1, 0}}},
      {"touching is not sharing", {Says(0, 3)}, {Says(3, 6)}, {}},
      {"a long span reaches over later ones", {Says(5, 6)}, {Says(0, 9), Says(1, 2)}, {{0, 0}}},
      {"an empty span shares nothing", {Says(3, 3)}, {Says(0, 6)}, {}},
  };
  for (const Case& c : cases) EXPECT_EQ(MatchOverlapping(c.a, c.b), c.expected) << c.about;
}

TEST(Agreement, EqualSpansArePaired) {
  const Reading a{Says(0, 3), Says(0, 4), Says(7, 7), Says(8, 9)};
  const Reading b{Says(0, 4), Says(1, 3), Says(7, 7)};
  EXPECT_EQ(MatchEqual(a, b), (Matches{{1, 0}, {2, 2}}));
}

TEST(Agreement, NothingToCompareIsNotDefined) {
  EXPECT_EQ(SpanAgreement({}).F1(), std::nullopt);
  EXPECT_EQ((SpanAgreement{2, 0, 0}).Precision(), std::nullopt);
  EXPECT_EQ((SpanAgreement{2, 0, 0}).Recall(), 0.0);
  EXPECT_EQ(CompareLabels({}, {}, {}, kClass).kappa, std::nullopt);
  EXPECT_EQ(MeasureReliability({}, kClass).alpha, std::nullopt);
  const Reading one{Says(0, 1, 5), Says(2, 3, 5)};
  EXPECT_EQ(CompareLabels(one, one, PairsUpTo(2), kClass).kappa, std::nullopt);
  EXPECT_EQ(MeasureReliability(std::vector{one, one}, kClass).alpha, std::nullopt);
}

// The worked example of Cohen's paper would do as well; these four pairs can be checked in the
// head: 3 of 4 agree, by chance 1/2 would, (3/4 - 1/2) / (1 - 1/2).
TEST(Agreement, KappaCountsOnlyWhatBothSay) {
  const Reading a{Says(0, 1, 1), Says(1, 2, 1), Says(2, 3, 2), Says(3, 4, 2), Says(4, 5, 1)};
  const Reading b{Says(0, 1, 1), Says(1, 2, 1), Says(2, 3, 2), Says(3, 4, 1), Says(4, 5)};
  Reading c = b;
  c[1].labels[kClass] = 2;
  const LabelAgreement agreement = CompareLabels(a, b, PairsUpTo(5), kClass);
  EXPECT_EQ(agreement.compared, 4);
  EXPECT_EQ(agreement.same, 3);
  EXPECT_DOUBLE_EQ(*agreement.kappa, 0.5);
  EXPECT_DOUBLE_EQ(*CompareLabels(a, c, PairsUpTo(5), kClass).kappa, 0);
}

TEST(Agreement, ReferencesAgreeWhereBothLackOneOrNameOnePlace) {
  const Reading a{Says(0, 1), Says(1, 2, 0, At(5, 6)), Says(2, 3, 0, At(5, 6)),
                  Says(3, 4, 0, {true, {}}), Says(4, 5)};
  const Reading b{Says(0, 1), Says(1, 2, 0, At(5, 6)), Says(2, 3, 0, At(5, 7)),
                  Says(3, 4, 0, {true, {}}), Says(4, 5, 0, At(5, 6))};
  EXPECT_EQ(CompareReferences(a, b, PairsUpTo(5)).same, 2);
  EXPECT_EQ(CompareReferences(a, b, PairsUpTo(5)).compared, 5);
}

// Every ordered pair of two labels of one unit, weighed one by one.
std::optional<double> SlowAlpha(const std::vector<Reading>& readings) {
  std::map<Position, std::vector<Label>> units;
  for (const Reading& reading : readings) {
    for (const Judgement& says : reading) {
      if (says.labels[kClass] != kNotGiven) units[says.span.begin].push_back(says.labels[kClass]);
    }
  }
  std::vector<Label> all;
  double observed = 0;
  for (const auto& [begin, labels] : units) {
    if (labels.size() < 2) continue;
    for (std::size_t i = 0; i < labels.size(); ++i) {
      all.push_back(labels[i]);
      for (std::size_t k = 0; k < labels.size(); ++k) {
        if (labels[i] != labels[k]) observed += 1.0 / static_cast<double>(labels.size() - 1);
      }
    }
  }
  double expected = 0;
  for (const Label a : all) {
    for (const Label b : all) expected += a != b ? 1 : 0;
  }
  if (expected == 0) return std::nullopt;
  const auto n = static_cast<double>(all.size());
  return 1 - (observed / n) / (expected / (n * (n - 1)));
}

TEST(Agreement, AlphaEqualsTheSumOverAllPairs) {
  std::mt19937 random(20261123);
  int defined = 0;
  for (int round = 0; round < 2000; ++round) {
    std::vector<Reading> readings(2 + random() % 4);
    for (Reading& reading : readings) {
      for (Position at = 0; at < 12; ++at) {
        if (random() % 3 != 0) {
          reading.push_back(Says(at, at + 1, static_cast<Label>(random() % 4) - 1));
        }
      }
    }
    const std::optional<double> slow = SlowAlpha(readings);
    const std::optional<double> alpha = MeasureReliability(readings, kClass).alpha;
    ASSERT_EQ(alpha.has_value(), slow.has_value()) << round;
    EXPECT_NEAR(alpha.value_or(0), slow.value_or(0), 1e-12) << round;
    defined += alpha.has_value() ? 1 : 0;
  }
  EXPECT_GT(defined, 1900);
}

// Repeatedly takes the best of all remaining pairs.
Matches SlowMatches(const Reading& a, const Reading& b) {
  Matches matches;
  std::set<std::size_t> takenA, takenB;
  for (;;) {
    Position most = 0;
    std::pair<std::size_t, std::size_t> best;
    for (std::size_t i = 0; i < a.size(); ++i) {
      for (std::size_t k = 0; k < b.size(); ++k) {
        const Position shared =
            std::min(a[i].span.end, b[k].span.end) - std::max(a[i].span.begin, b[k].span.begin);
        if (shared > most && !takenA.contains(i) && !takenB.contains(k)) {
          most = shared;
          best = {i, k};
        }
      }
    }
    if (most == 0) break;
    matches.push_back(best);
    takenA.insert(best.first);
    takenB.insert(best.second);
  }
  std::sort(matches.begin(), matches.end());
  return matches;
}

TEST(Agreement, OverlapsArePairedAsOneWhoTakesTheBestEachTime) {
  std::mt19937 random(7);
  const auto reading = [&] {
    std::set<std::pair<Position, Position>> spans;
    for (int i = 0; i < 8; ++i) {
      const auto begin = static_cast<Position>(random() % 20);
      spans.insert({begin, begin + static_cast<Position>(random() % 7)});
    }
    Reading made;
    for (const auto& [begin, end] : spans) made.push_back(Says(begin, end));
    return made;
  };
  for (int round = 0; round < 3000; ++round) {
    const Reading a = reading();
    const Reading b = reading();
    ASSERT_EQ(MatchOverlapping(a, b), SlowMatches(a, b)) << round;
  }
}

// --- The command ---------------------------------------------------------------------------------

std::string Line(const std::string& span, const std::string& user, const std::string& mode) {
  return "t_op(1\\ " + span + "\\ then\\ Session-ID\\ " + user + "\\ Class\\ a_operator\\ " + mode +
         "\\ Type\\ Granularity\\ Value ?\\ Reference Tag\\  \\   )\r\n";
}

struct Outcome {
  int code;
  std::string out;
  std::string err;
};

Outcome Agree(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "agree");
  std::ostringstream out;
  std::ostringstream err;
  const int code = RunCommandLine(std::move(arguments), "1", out, err);
  return {code, out.str(), err.str()};
}

void Write(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

class AgreeCommand : public testing::Test {
 protected:
  void SetUp() override {
    Write("x.rtf", "{\\rtf1 then and now}");
    Write("x.tlf", Line("1\\ 4", "Zo\xC3\xAB", "absolute ") + Line("1\\ 4", "Bo", "absolute ") +
                       Line("1\\ 4", "Bo", "relative") + Line("10\\ 12", "Bo", "relative"));
  }
  test::ScenarioFolder folder_{test::OwnScenarios()};
};

TEST_F(AgreeCommand, PrintsEveryPairInTheOrderOfNames) {
  const Outcome run = Agree({"--by", "user", "--csv", "x.rtf"});
  EXPECT_EQ(run.code, 0) << run.err;
  for (const char* row :
       {"reader_a,reader_b,field,measure,value,n\r\n", "\r\nBo,Zoë,span,spans_a,2,2\r\n",
        "\r\nBo,Zoë,span,precision,1.000000000000,1\r\n",
        "\r\nBo,Zoë,span,recall,0.500000000000,2\r\n", "\r\nBo,Zoë,class,n,0,0\r\n",
        "\r\nBo,Zoë,class,agreement,NA,0\r\n",
        // The last of two tags on one span counts.
        "\r\nBo,Zoë,mode,agreement,0.000000000000,1\r\n", "\r\nBo,Zoë,operator,kappa,NA,1\r\n",
        "\r\n*,*,mode,alpha,0.000000000000,1\r\n",
        "\r\nBo,Zoë,reference,agreement,1.000000000000,1\r\n"}) {
    EXPECT_NE(run.out.find(row), std::string::npos) << row << run.out;
  }
}

TEST_F(AgreeCommand, RefusesWhatCannotBeCompared) {
  Write("y.rtf", "{\\rtf1 then and new}");
  Write("y.tlf", Line("1\\ 4", "Al", "relative"));
  Write("nobody.tlf", Line("1\\ 4", " User-ID", "relative"));
  struct Case {
    std::vector<std::string> arguments;
    const char* complaint;
  };
  const Case cases[] = {
      {{"--by", "user", "x.rtf", "y.rtf"}, "differ from character 11"},
      {{"--by", "session", "x.rtf"}, "x.tlf:1: the tag names no session"},
      {{"--by", "user", "x.rtf", "--tags", "x.tlf", "--tags", "nobody.tlf"}, "nobody.tlf:1:"},
      {{"--by", "user", "y.rtf"}, "one reader alone, Al"},
      {{"--by", "file", "x.rtf"}, "one reader alone, x.tlf"},
      {{"--by", "user", "missing.rtf"}, "no readers"},
  };
  for (const Case& c : cases) {
    const Outcome run = Agree(c.arguments);
    EXPECT_EQ(run.code, 2) << c.complaint;
    EXPECT_EQ(run.out, "") << c.complaint;
    EXPECT_NE(run.err.find(c.complaint), std::string::npos) << run.err;
  }
}

TEST_F(AgreeCommand, TakesListsAsReadersAndLeavesDamagedLinesOut) {
  Write("empty.tlf", "");
  Write("other.tlf", "t_op(2\r\n" + Line("2\\ 5", "", "relative"));
  const Outcome run = Agree({"--csv", "--by", "file", "--match", "overlap", "--tags", "x.tlf",
                             "--tags", "other.tlf", "--tags", "empty.tlf", "x.rtf"});
  EXPECT_EQ(run.code, 1);
  EXPECT_NE(run.err.find("other.tlf:1: "), std::string::npos) << run.err;
  EXPECT_NE(run.out.find("\r\nother.tlf,x.tlf,span,matched,1,1\r\n"), std::string::npos) << run.out;
  EXPECT_NE(run.out.find("\r\nempty.tlf,x.tlf,span,precision,0.000000000000,2\r\n"),
            std::string::npos);
  EXPECT_NE(run.out.find("\r\nempty.tlf,x.tlf,span,recall,NA,0\r\n"), std::string::npos);
}

}  // namespace
}  // namespace quill::companion
