#pragma once

#include "window/fitted_text.h"
#include "window/glyph.h"
#include "window/pressable.h"
#include "window/zone.h"

namespace zephon {

// A button that says its state by its words and a lamp, not by its colour alone.
class StateButton : public Pressable {
 public:
  enum class Look {
    Plain,
    Large,      // to be read and hit from arm's length
    Indicator,  // not to be pressed: disabled, and yet in full contrast
    Switch,     // a knob between the names of two states, which stand beside it
    Rail,       // of a page: drawing over word, or beside it where the button is low
  };

  explicit StateButton(QWidget* parent, Look look = Look::Plain);

  void setCaption(const QString& caption);
  const QString& caption() const { return caption_; }
  const FittedText& drawnCaption() const { return drawn_; }  // the tooltip tells a cut one whole
  void setGlyph(Glyph glyph);
  void setLamp(Zone lit);  // colour of the lamp of a two-state button while it is on

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  bool shows(Look look) const { return look_ == look; }
  QFont captionFont() const;
  QColor ink() const;
  void paintGround(QPainter& painter) const;
  void paintRail(QPainter& painter);
  void paintSwitch(QPainter& painter);
  void paintRow(QPainter& painter);

  Look look_;
  QString caption_;
  Glyph glyph_ = Glyph::None;
  Zone lit_ = Zone::Empty;
  FittedText drawn_;
};

}  // namespace zephon
