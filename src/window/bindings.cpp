#include "window/bindings.h"

#include <QApplication>
#include <QLabel>
#include <QPixmap>
#include <QProgressBar>
#include <QSignalBlocker>
#include <algorithm>
#include <cmath>
#include <utility>

#include "window/colours.h"
#include "window/fields.h"
#include "window/meter.h"
#include "window/reading.h"
#include "window/record_bar.h"

namespace zephon {
namespace {

// The keyboard's focus waits beside a control that goes away for a moment, and comes back with it unless the
// user has taken it elsewhere meanwhile.
void setReachable(QWidget& widget, bool visible, bool enabled) {
  const bool gone = !visible || !enabled;
  QWidget* const ground = widget.parentWidget();
  if (gone && widget.hasFocus() && ground) {
    widget.setProperty("hadFocus", true);
    ground->setFocus();
  }
  widget.setVisible(visible);
  widget.setEnabled(enabled);
  if (gone || !widget.property("hadFocus").toBool()) return;
  widget.setProperty("hadFocus", false);
  if (ground && ground->hasFocus()) widget.setFocus();
}

// `drawValue` runs now and after each change of the element, of its legend or of the language.
void follow(QWidget& widget, Element& element, const Legend& legend, const std::function<void()>& drawValue) {
  widget.setObjectName(toQt(element.name()));
  const auto drawAll = [&widget, &element, drawValue] {
    followCommon(widget, element);
    drawValue();
  };
  watchWhile(widget, element, drawAll);
  if (legend.label) watchWhile(widget, *legend.label, drawAll);
  whileSpoken(widget, drawAll);
}

// What a value is of, and whether it is of now.
void describe(QWidget& widget) {
  const QString meaning = widget.property("meaning").toString();
  const QString live = widget.property("stale").toBool() ? say(words::kNotLive) : QString();
  const QString comma = meaning.isEmpty() || live.isEmpty() ? QString() : QStringLiteral(", ");
  widget.setAccessibleDescription(meaning + comma + live);
}

// Text in its own colour, faded and slanted where it is stale.
void setTextColour(QWidget& widget, QPalette::ColorRole role, Colour colour, bool stale) {
  QPalette own;  // whatever it does not hold is the desktop's
  if (stale || colour != kBlack) {
    const QPalette desktop = QApplication::palette(&widget);
    const QColor ink = stale ? tone(Tone::Muted, desktop) : textColour(colour, desktop);
    own.setColor(QPalette::Active, role, ink);
    own.setColor(QPalette::Inactive, role, ink);
  }
  widget.setPalette(own);
  QFont font = widget.font();
  font.setItalic(stale);
  widget.setFont(font);
  widget.setProperty("stale", stale);
  describe(widget);
}

QString nameWithUnit(const Legend& legend, const QString& unit) {
  return unit.isEmpty() ? legend.now() : legend.now() + QStringLiteral(" (%1)").arg(unit);
}

QString captionOf(const Button& element, const Legend& legend) {
  return element.caption().empty() ? legend.now() : toQt(element.caption());
}

}  // namespace

void setTooltip(QWidget& widget, const Element& element, const QString& addition) {
  widget.setProperty("addition", addition);
  const QString own = toQt(element.tooltip());
  widget.setToolTip(own.isEmpty() || addition.isEmpty() ? own + addition
                                                        : own + QLatin1Char('\n') + addition);
}

QString rangeText(const NumEdit::Range& range, const QString& unit) {
  return QStringLiteral("%1 \u2013 %2 %3").arg(range.minimum).arg(range.maximum).arg(unit).trimmed();
}

void describeBy(QWidget& widget, const Word& word) {
  whileSpoken(widget, [&widget, word] {
    widget.setProperty("meaning", say(word));
    describe(widget);
  });
}

void followCommon(QWidget& widget, const Element& element) {
  setReachable(widget, element.visible(), element.enabled());
  setTooltip(widget, element, widget.property("addition").toString());
  if (element.fontSize() <= 0 || widget.font().pointSize() == element.fontSize()) return;
  QFont font = widget.font();
  font.setPointSize(element.fontSize());
  widget.setFont(font);
}

QLabel* draw(Label& element, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setTextFormat(Qt::PlainText);
  follow(*label, element, QString(), [label, &element] {
    label->setText(toQt(element.caption()));
    label->setAccessibleName(label->text());
    setTextColour(*label, QPalette::WindowText, element.colour(), element.stale());
  });
  return label;
}

QLabel* draw(Image& element, const Legend& legend, int height, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setFocusPolicy(Qt::NoFocus);
  follow(*label, element, legend, [label, &element, legend, height] {
    const double ratio = label->devicePixelRatioF();
    QPixmap picture(toQt(element.path()));
    if (!picture.isNull()) {
      picture = picture.scaledToHeight(std::min(picture.height(), static_cast<int>(height * ratio)),
                                       Qt::SmoothTransformation);
      picture.setDevicePixelRatio(ratio);
    }
    label->setPixmap(picture);
    label->setAccessibleName(legend.now());
    label->setVisible(element.visible() && !picture.isNull());
  });
  return label;
}

StateButton* draw(Button& element, const Legend& legend, QWidget* parent, StateButton::Look look,
                  Glyph glyph) {
  auto* button = new StateButton(parent, look);
  button->setGlyph(glyph);
  button->setCheckable(element.kind() == Button::Kind::Latching);
  button->onPress = [&element](MouseButton mouse) { element.click(mouse); };
  follow(*button, element, legend, [button, &element, legend] {
    button->showOn(element.value());
    button->setCaption(captionOf(element, legend));
    button->setAccessibleName(button->caption().isEmpty() ? legend.now() : button->caption());
  });
  return button;
}

NumberField* draw(NumEdit& element, const Legend& legend, const QString& unit, QWidget* parent) {
  auto* field = new NumberField(parent);
  if (!unit.isEmpty()) field->setSuffix(QLatin1Char(' ') + unit);
  const auto drawValue = [field, &element, legend, unit] {
    field->show(element.value(), element.range());
    field->setAccessibleDescription(rangeText(element.range(), unit));
    field->setAccessibleName(nameWithUnit(legend, unit));
  };
  follow(*field, element, legend, drawValue);
  field->onEdit = [&element, drawValue](double value) {
    element.edit(value);
    drawValue();  // an entry outside the range may have changed nothing but the field
  };
  return field;
}

DateField* draw(DateEdit& element, const Legend& legend, QWidget* parent) {
  auto* field = new DateField(parent);
  follow(*field, element, legend, [field, &element, legend] {
    field->show(element.value());
    field->setAccessibleName(legend.now());
  });
  field->onBegin = [&element] { element.beginEdit(); };
  field->onEdit = [&element](double value) { element.edit(value); };
  return field;
}

TextField* draw(TextBox& element, const Legend& legend, QWidget* parent) {
  auto* field = new TextField(parent);
  field->setReadOnly(element.readOnly());
  if (element.maxLength() > 0) field->setMaxLength(element.maxLength());
  follow(*field, element, legend, [field, &element, legend] {
    const QString text = toQt(element.text());
    if (text != field->text()) field->setText(text);
    field->setAccessibleName(legend.now());
    setTextColour(*field, QPalette::Text, element.colour(), element.stale());
  });
  field->onPress = [&element] { element.click(); };
  QObject::connect(field, &QLineEdit::textEdited, field,
                   [&element](const QString& text) { element.type(fromQt(text)); });
  return field;
}

ReadingButton* drawReading(TextBox& element, const Legend& legend, const QString& unit, QWidget* parent) {
  auto* button = new ReadingButton(parent);
  follow(*button, element, legend, [button, &element, legend, unit] {
    const QPalette palette = button->palette();
    button->show(toQt(element.text()) + QLatin1Char(' ') + unit,
                 element.stale() ? tone(Tone::Muted, palette) : textColour(element.colour(), palette));
    button->setAccessibleName(legend.now());
  });
  button->onPress = [&element](MouseButton mouse) {
    if (mouse == MouseButton::Left) element.click();
  };
  return button;
}

ChoiceField* draw(Combo& element, const Legend& legend, QWidget* parent) {
  auto* field = new ChoiceField(parent);
  follow(*field, element, legend, [field, &element, legend] {
    const QSignalBlocker quiet(field);
    QStringList items;
    for (const std::string& item : element.items()) items.append(toQt(item));
    QStringList shown;
    for (int index = 0; index < field->count(); ++index) shown.append(field->itemText(index));
    if (items != shown) {
      field->clear();
      field->addItems(items);
    }
    field->setCurrentIndex(element.index());
    field->setAccessibleName(legend.now());
  });
  QObject::connect(field, &QComboBox::activated, field, [&element](int index) { element.choose(index); });
  return field;
}

Meter* drawMeter(Slider& element, Label& reading, const Legend& legend, QWidget* parent, const Marks& marks) {
  auto* meter = new Meter(parent);
  const auto drawValue = [meter, &element, &reading, legend, marks] {
    Meter::Face face;
    face.title = element.tooltip().empty() ? legend.now() : toQt(element.tooltip());
    face.reading = toQt(reading.caption());
    face.value = element.value();
    face.axis = element.axis();
    face.zone = zoneOf(element.pointer().colour);
    face.on = element.on();
    face.stale = reading.stale();
    if (marks) face.marks = marks();
    meter->setFace(face);
    QString addition = say(face.on ? words::kPressToTurnOff : words::kPressToTurnOn);
    if (!face.marks.empty()) addition += QLatin1Char('\n') + say(words::kLimitMarks);
    setTooltip(*meter, element, addition);
  };
  follow(*meter, element, legend, drawValue);
  watchWhile(*meter, reading, drawValue);
  meter->onPress = [&element](MouseButton mouse) {
    if (mouse == MouseButton::Left) element.click();
  };
  return meter;
}

RecordBar* drawRecord(Slider& element, const Legend& legend, const std::vector<Label*>& classes,
                      QWidget* parent) {
  auto* bar = new RecordBar(parent);
  const auto drawValue = [bar, &element, legend, classes] {
    std::vector<RecordBar::Segment> segments;
    QStringList shares;
    double reached = 0;
    for (std::size_t pointer = 1; pointer < element.pointers(); ++pointer) {
      const double share = std::max(element.pointer(pointer).value - reached, 0.0);
      reached += share;
      const Label& name = *classes.at(pointer - 1);
      if (share > 0) shares += QStringLiteral("%1 %2 %").arg(toQt(name.caption())).arg(std::round(share));
      segments.push_back(
          {static_cast<int>(pointer), element.pointer(pointer).value, element.pointer(pointer).colour});
    }
    bar->setSegments(std::move(segments), element.on());
    bar->setAccessibleName(legend.now());
    bar->setAccessibleDescription(element.on() ? shares.join(QStringLiteral(", ")) : QString());
  };
  follow(*bar, element, legend, drawValue);
  for (Label* name : classes) watchWhile(*bar, *name, drawValue);
  bar->onPress = [&element](MouseButton mouse) {
    if (mouse == MouseButton::Left) element.click();
  };
  return bar;
}

Swatch* drawSwatch(Slider& record, std::size_t pointer, Label& legend, QWidget* parent) {
  auto* swatch = new Swatch(static_cast<int>(pointer), parent);
  const auto drawNow = [swatch, &record, pointer, &legend] {
    swatch->setColour(record.pointer(pointer).colour);
    swatch->setVisible(legend.visible());
    swatch->setAccessibleName(toQt(legend.caption()));
  };
  watchWhile(*swatch, record, drawNow);
  watchWhile(*swatch, legend, drawNow);
  drawNow();
  return swatch;
}

QProgressBar* drawProgress(Slider& element, const Legend& legend, QWidget* parent) {
  auto* bar = new QProgressBar(parent);
  follow(*bar, element, legend, [bar, &element, legend] {
    bar->setRange(static_cast<int>(element.axis().minimum), static_cast<int>(element.axis().maximum));
    bar->setValue(static_cast<int>(element.value()));
    bar->setAccessibleName(legend.now());
  });
  return bar;
}

SlideField* drawSlide(Slider& element, const Legend& legend, QWidget* parent) {
  auto* slide = new SlideField(parent);
  follow(*slide, element, legend, [slide, &element, legend] {
    const QSignalBlocker quiet(slide);
    slide->setRange(static_cast<int>(element.axis().minimum), static_cast<int>(element.axis().maximum));
    slide->setPageStep(static_cast<int>(element.axis().majorStep));
    slide->setValue(static_cast<int>(element.value()));
    slide->setAccessibleName(element.tooltip().empty() ? legend.now() : toQt(element.tooltip()));
  });
  QObject::connect(slide, &QSlider::valueChanged, slide, [&element](int value) { element.setValue(value); });
  return slide;
}

}  // namespace zephon
