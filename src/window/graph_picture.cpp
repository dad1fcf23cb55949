#include "window/graph_picture.h"

#include <qcustomplot.h>

#include <QBuffer>
#include <QFileDialog>
#include <QImage>
#include <QMessageBox>
#include <QSvgGenerator>
#include <QTextDocument>

#include "files/fault_text.h"
#include "platform/save_file.h"
#include "window/bindings.h"
#include "window/colours.h"
#include "window/words.h"

namespace zephon {
namespace {

constexpr int kMargin = 8;
constexpr double kSharp = 2;  // pixels of a picture for one on screen

class Picture {
 public:
  Picture(QCustomPlot& plot, const QString& legend) : plot_(plot) {
    legend_.setDefaultFont(plot.font());
    legend_.setDocumentMargin(kMargin);
    legend_.setTextWidth(plot.width());
    legend_.setHtml(QStringLiteral("<div style=\"color:%1\">%2</div>")
                        .arg(plot.palette().color(QPalette::Active, QPalette::Text).name(), legend));
  }
  QSize size() const { return plot_.size() + QSize(0, legendHeight()); }
  void paint(QCPPainter& painter) {
    painter.fillRect(QRect(QPoint(), size()), tone(Tone::Card, plot_.palette()));
    legend_.drawContents(&painter);
    painter.translate(0, legendHeight());
    plot_.toPainter(&painter, plot_.width(), plot_.height());
  }

 private:
  int legendHeight() const { return qCeil(legend_.size().height()); }

  QCustomPlot& plot_;
  QTextDocument legend_;
};

void report(QWidget& parent, const QString& text) {
  auto* box = new QMessageBox(QMessageBox::Warning, say(words::kSavePicture), text, QMessageBox::Ok, &parent);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->open();
}

}  // namespace

QByteArray pngOf(QCustomPlot& plot, const QString& legend) {
  Picture picture(plot, legend);
  QImage image((QSizeF(picture.size()) * kSharp).toSize(), QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(kSharp);
  {
    QCPPainter painter(&image);
    picture.paint(painter);
  }
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  image.save(&bytes, "PNG");
  return bytes.data();
}

QByteArray svgOf(QCustomPlot& plot, const QString& legend) {
  Picture picture(plot, legend);
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  QSvgGenerator generator;
  generator.setOutputDevice(&bytes);
  generator.setSize(picture.size());
  generator.setViewBox(QRect(QPoint(), picture.size()));
  generator.setTitle(plot.parentWidget() ? plot.parentWidget()->accessibleName() : QString());
  {
    QCPPainter painter(&generator);
    picture.paint(painter);
  }
  return bytes.data();
}

void savePicture(QWidget& parent, QCustomPlot& plot, const QString& legend) {
  const auto svg = [](const QString& path) {
    return path.endsWith(QStringLiteral(".svg"), Qt::CaseInsensitive);
  };
  auto* dialog = new QFileDialog(&parent, say(words::kSavePicture));
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setNameFilters({say(words::kPngPictures), say(words::kSvgPictures)});
  dialog->setDefaultSuffix(QStringLiteral("png"));
  QObject::connect(dialog, &QFileDialog::filterSelected, dialog, [dialog](const QString& filter) {
    dialog->setDefaultSuffix(filter == say(words::kSvgPictures) ? QStringLiteral("svg")
                                                                : QStringLiteral("png"));
  });
  QObject::connect(dialog, &QFileDialog::fileSelected, &parent,
                   [&parent, &plot, legend, svg](const QString& path) {
                     const QByteArray bytes = svg(path) ? svgOf(plot, legend) : pngOf(plot, legend);
                     const SaveResult saved =
                         saveFile(fromQt(path), {bytes.constData(), static_cast<std::size_t>(bytes.size())});
                     if (!saved) report(parent, toQt(saveFaultText(saved, spokenDict())));
                   });
  dialog->open();  // the loop goes on meanwhile, and the program can end
}

}  // namespace zephon
