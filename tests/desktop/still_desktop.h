#pragma once

#include <QApplication>
#include <QProxyStyle>
#include <QStyleFactory>

namespace frostmark::test {

// Makes the desktop ask for less motion for as long as it lives.
class StillDesktop {
 public:
  StillDesktop() { QApplication::setStyle(new StillStyle(QStyleFactory::create("Fusion"))); }
  ~StillDesktop() { QApplication::setStyle(QStyleFactory::create("Fusion")); }
  StillDesktop(const StillDesktop&) = delete;
  StillDesktop& operator=(const StillDesktop&) = delete;

 private:
  class StillStyle : public QProxyStyle {
   public:
    using QProxyStyle::QProxyStyle;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override {
      return hint == SH_Widget_Animation_Duration
                 ? 0
                 : QProxyStyle::styleHint(hint, option, widget, answer);
    }
  };
};

}  // namespace frostmark::test
