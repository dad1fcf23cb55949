#include "window/qt_translation.h"

#include <QCoreApplication>
#include <QKeySequence>
#include <QLibraryInfo>
#include <QLocale>
#include <QPointer>
#include <QTranslator>

#include "window/legend.h"

namespace zephon {

void translateQt(const std::string& language) {
  static QPointer<QTranslator> catalogue;
  delete catalogue;
  catalogue = new QTranslator(QCoreApplication::instance());
  const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  if (catalogue->load(QLocale(toQt(language)), QStringLiteral("qtbase"), QStringLiteral("_"), folder)) {
    QCoreApplication::installTranslator(catalogue);
  }
}

std::string keyInWords(const std::string& key) {
  return fromQt(QKeySequence(toQt(key)).toString(QKeySequence::NativeText));
}

}  // namespace zephon
