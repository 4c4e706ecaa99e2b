// The tour runs from end to end, and the guide shows its true result.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <set>

namespace quill::test {
namespace {

QString Guide() {
  QFile file(QStringLiteral(QUILL_PROJECT "/docs/guide.md"));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return QString::fromUtf8(file.readAll());
}

QStringList FoundIn(const QString& text, const char* pattern) {
  QStringList found;
  auto matches = QRegularExpression(QString::fromLatin1(pattern)).globalMatch(text);
  while (matches.hasNext()) found += matches.next().captured(1);
  return found;
}

std::size_t Colours(const QImage& image) {
  std::set<QRgb> colours;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) colours.insert(image.pixel(x, y));
  }
  return colours.size();
}

TEST(Tour, ShowsWhatTheGuideTells) {
  const QTemporaryDir folder;
  QProcess tour;
  tour.start(QStringLiteral(QUILL_TOUR), {folder.path()});
  ASSERT_TRUE(tour.waitForFinished(120'000));
  ASSERT_EQ(tour.exitCode(), 0) << tour.readAllStandardError().toStdString();

  const QStringList pictures = QDir(folder.path()).entryList({QStringLiteral("*.png")});
  EXPECT_GE(pictures.size(), 15);
  QImage former;
  for (const QString& name : pictures) {
    const QImage picture(folder.filePath(name));
    EXPECT_GT(Colours(picture), 50U) << name.toStdString();
    EXPECT_NE(picture, former) << name.toStdString();
    former = picture;
  }
  for (const QString& name : FoundIn(Guide(), R"(\(pictures/([^)]+)\))")) {
    EXPECT_TRUE(pictures.contains(name)) << "the guide's " << name.toStdString();
  }
  const QString said = QString::fromUtf8(tour.readAllStandardOutput());
  EXPECT_EQ(FoundIn(said, R"((t_op\(.*\)))"), FoundIn(Guide(), R"((t_op\(.*\)))"));
  EXPECT_EQ(FoundIn(said, R"((t_op\(.*\)))").size(), 5);
}

TEST(Tour, SaysWhatIsWrong) {
  QProcess tour;
  tour.start(QStringLiteral(QUILL_TOUR), {QStringLiteral("/dev/null/pictures")});
  ASSERT_TRUE(tour.waitForFinished(120'000));
  EXPECT_EQ(tour.exitCode(), 1);
  EXPECT_FALSE(tour.readAllStandardError().isEmpty());
}

}  // namespace
}  // namespace quill::test
