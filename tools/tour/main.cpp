// tour [FOLDER]: plays the tour and leaves a picture of each main step in the folder, or in a new
// one whose name it prints.
#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <cstdio>
#include <stdexcept>

#include "tour/tour.h"
#include "window/application.h"
#include "window/shared/appearance.h"
#include "window/shared/shown.h"

namespace {

void CopyExample(const QString& folder, const QString& name) {
  if (!QFile::copy(QStringLiteral(QUILL_EXAMPLES "/") + name, folder + QLatin1Char('/') + name)) {
    throw std::runtime_error("cannot copy " + name.toStdString());
  }
}

// The given folder, or a new one, which is not removed.
QString PictureFolder(const QStringList& arguments) {
  if (arguments.size() > 1) return QDir(arguments[1]).absolutePath();
  QTemporaryDir folder(QDir::tempPath() + QStringLiteral("/quillorandix-tour-XXXXXX"));
  if (!folder.isValid()) throw std::runtime_error("cannot make a folder for the pictures");
  folder.setAutoRemove(false);
  return folder.path();
}

void PlayTour(const QStringList& arguments) {
  const QString pictures = PictureFolder(arguments);
  const QTemporaryDir desk;
  CopyExample(desk.path(), QStringLiteral("the-ferry.rtf"));
  CopyExample(desk.path(), QStringLiteral("globaldict.gdf"));
  if (!QDir::setCurrent(desk.path())) throw std::runtime_error("no folder to work in");
  quill::tour::Album album(pictures);
  quill::tour::Tour(desk.path(), album).Play();
  std::printf("The pictures are in %s. The tag list:\n", pictures.toLocal8Bit().constData());
  for (const std::u32string& tag : quill::tour::Tour::Tags()) {
    std::printf("%s\n", quill::ToQt(tag).toUtf8().constData());
  }
}

}  // namespace

int main(int argc, char** argv) {
  // The offscreen platform complains about every window that is raised.
  if (qgetenv("QT_QPA_PLATFORM") == "offscreen") {
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
  }
  // The desktop's own dialogs cannot be typed into.
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  quill::Application application(argc, argv);
  quill::SetLook(application);
  // Lists that have just dropped down are clicked at once.
  QApplication::setDoubleClickInterval(1);
  try {
    PlayTour(QApplication::arguments());
    return 0;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "tour: %s\n", failure.what());
    return 1;
  }
}
