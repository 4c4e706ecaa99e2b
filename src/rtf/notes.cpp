#include "rtf/notes.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <optional>
#include <string_view>

#include "rtf/fragment.h"
#include "rtf/syntax/lexer.h"
#include "rtf/syntax/words.h"

namespace quill::rtf {
namespace {

constexpr std::string_view kBlanks = " \r\n";

// How the notes of one kind are numbered.
class Numbering {
 public:
  std::string Next() {
    const int number = next_++;
    if (style_ == "alc") return Letter(number, 'a');
    if (style_ == "auc") return Letter(number, 'A');
    if (style_ == "rlc") return Roman(number, "ixcm", "vld");
    if (style_ == "ruc") return Roman(number, "IXCM", "VLD");
    return std::to_string(number);
  }
  void SetStyle(std::string_view style) { style_ = style; }
  void Start(int number) { next_ = number; }

 private:
  // Behind z come aa, bb and so on.
  static std::string Letter(int number, char first) {
    constexpr int kLetters = 26;
    constexpr int kMostLetters = 8;
    const int times = (number - 1) / kLetters % kMostLetters + 1;
    return std::string(static_cast<std::size_t>(times),
                       static_cast<char>(first + (number - 1) % kLetters));
  }
  static std::string Roman(int number, std::string_view ones, std::string_view fives);

  std::string style_;
  int next_ = 1;
};

std::string Numbering::Roman(int number, std::string_view ones, std::string_view fives) {
  constexpr int kTooMany = 4000;
  if (number >= kTooMany) return std::to_string(number);
  std::string roman;
  int unit = 1000;
  for (std::size_t i = 4; i-- > 0; unit /= 10) {
    const int digit = number / unit % 10;
    if (digit == 9) roman += {ones[i], ones[i + 1]};
    if (digit == 4) roman += {ones[i], fives[i]};
    if (digit >= 5 && digit < 9) roman += fives[i];
    if (digit % 5 < 4) roman.append(static_cast<std::size_t>(digit % 5), ones[i]);
  }
  return roman;
}

bool Contains(std::string_view bytes, std::string_view word) {
  return bytes.find(word) != std::string_view::npos;
}

std::string_view WithoutBlanks(std::string_view bytes) {
  return bytes.substr(0, bytes.find_last_not_of(kBlanks) + 1);
}

// Goes from backslash to backslash: most of a text's bytes are passed over at the speed of memory.
class NoteFinder {
 public:
  explicit NoteFinder(std::string_view bytes) : bytes_(bytes), lexer_(bytes) {}

  std::vector<Note> Find() {
    for (std::size_t at = bytes_.find('\\'); at != std::string_view::npos;
         at = bytes_.find('\\', lexer_.At())) {
      lexer_.Seek(static_cast<Offset>(at));
      Take(lexer_.Next());
    }
    return std::move(notes_);
  }

 private:
  void Take(const Token& token) {
    if (token.kind != Token::kWord) return;
    if (token.word == "chftn") {
      isNumbered_ = true;
    } else if (token.word.starts_with("ftn")) {
      TakeNumbering(footnotes_, token.word.substr(3), token.number);
    } else if (token.word.starts_with("aftn")) {
      TakeNumbering(endnotes_, token.word.substr(4), token.number);
    } else if (token.word == "fet") {
      allAreEndnotes_ = token.number == 1;
    }
    TakeHead(token);
  }

  static void TakeNumbering(Numbering& numbering, std::string_view word, int number) {
    if (word == "start" && number > 0) numbering.Start(number);
    if (word.starts_with("na") || word.starts_with("nr")) numbering.SetStyle(word.substr(1));
  }

  // Where a group has a word at its head, runs over the group if it is none of the text.
  void TakeHead(const Token& token) {
    const bool starred = WithoutBlanks(bytes_.substr(0, token.begin)).ends_with("\\*");
    const std::size_t star = starred ? bytes_.rfind('\\', token.begin - 1) : token.begin;
    if (!WithoutBlanks(bytes_.substr(0, star)).ends_with('{')) return;
    const Word word = LookUp(token.word).word;
    const bool isText =
        word != Word::kSkipped && word != Word::kObject && !(word == Word::kUnknown && starred);
    if (!isText) TakeGroup(token);
  }

  void TakeGroup(const Token& token) {
    const std::string_view content = UpToClose(bytes_.substr(token.end));
    lexer_.Seek(token.end + static_cast<Offset>(content.size()));
    if (token.word == "footnote") AddNote(token, content);
    if (token.word == "annotation") Add({Note::kComment, token.end, {}, author_});
    if (token.word == "atnauthor") author_ = token.end;
  }

  void AddNote(const Token& token, std::string_view content) {
    const bool isEndnote = allAreEndnotes_ || Contains(content, "\\ftnalt");
    Note note{isEndnote ? Note::kEndnote : Note::kFootnote, token.end, {}, 0};
    if (isNumbered_ || Contains(content, "\\chftn")) {
      note.mark = (isEndnote ? endnotes_ : footnotes_).Next();
    }
    Add(std::move(note));
  }

  void Add(Note note) {
    notes_.push_back(std::move(note));
    isNumbered_ = false;
    author_ = 0;
  }

  std::string_view bytes_;
  Lexer lexer_;
  std::vector<Note> notes_;
  Numbering footnotes_;
  Numbering endnotes_;
  bool allAreEndnotes_ = false;
  bool isNumbered_ = false;  // by a number in the text in front of it
  Offset author_ = 0;        // of the comment that comes
};

// Most texts have no notes, and this search takes a tenth of the time that reading every word does.
bool Holds(std::string_view bytes, std::string_view word) {
  const std::boyer_moore_horspool_searcher searcher(word.begin(), word.end());
  return std::search(bytes.begin(), bytes.end(), searcher) != bytes.end();
}

std::u32string TextAt(const Document& document, Offset place) {
  const std::string_view bytes = document.GetSource().bytes;
  const std::optional<Document> text = ReadFragment(document, UpToClose(bytes.substr(place)));
  if (!text) return {};
  constexpr std::u32string_view kBlank = U" \t\n\u00A0\u2028";
  const std::size_t begin = text->Text().find_first_not_of(kBlank);
  if (begin == std::u32string::npos) return {};
  return text->Text().substr(begin, text->Text().find_last_not_of(kBlank) + 1 - begin);
}

}  // namespace

std::vector<Note> FindNotes(const Document& document) {
  const std::string& bytes = document.GetSource().bytes;
  if (!Holds(bytes, "footnote") && !Holds(bytes, "annotation")) return {};
  return NoteFinder(bytes).Find();
}

std::u32string TextOf(const Document& document, const Note& note) {
  return TextAt(document, note.place);
}

std::u32string AuthorOf(const Document& document, const Note& note) {
  return note.author > 0 ? TextAt(document, note.author) : std::u32string();
}

}  // namespace quill::rtf
