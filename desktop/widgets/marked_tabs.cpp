#include "desktop/widgets/marked_tabs.h"

#include <QStyleOptionTab>
#include <QStylePainter>
#include <QTabBar>
#include <QVariantAnimation>

#include "desktop/painting/motion.h"
#include "desktop/painting/palette.h"

namespace frostmark {

namespace {

constexpr int kGlowMs = 1600;
constexpr int kGlows = 4;
constexpr double kRest = 0.55;  // how strongly a calling tab glows at rest

}  // namespace

class MarkedTabs::Bar : public QTabBar {
 public:
  explicit Bar(QWidget* parent) : QTabBar(parent) {
    setObjectName("qt_tabwidget_tabbar");  // as that of every tab widget
    glow_.setDuration(kGlowMs);
    glow_.setLoopCount(kGlows);
    glow_.setKeyValues({{0, kRest}, {0.5, 1.0}, {1, kRest}});
    connect(&glow_, &QVariantAnimation::valueChanged, this, [this] { update(tabRect(marked_)); });
  }

  int Marked() const { return marked_; }

  void Mark(int tab, Manner manner, const QString& why) {
    if (tab == marked_ && manner == manner_) return;
    if (marked_ >= 0) setTabToolTip(marked_, unmarked_tip_);
    marked_ = tab;
    manner_ = manner;
    if (marked_ >= 0) {
      // The tab goes on telling its name and its key.
      unmarked_tip_ = tabToolTip(marked_);
      setTabToolTip(marked_, unmarked_tip_.isEmpty() ? why : why + ". " + unmarked_tip_);
    }
    glow_.stop();
    if (marked_ >= 0 && manner_ == Manner::kCalling && MotionWanted()) glow_.start();
    update();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QStylePainter painter(this);
    for (int tab = 0; tab < count(); ++tab) {
      QStyleOptionTab option;
      initStyleOption(&option, tab);
      if (tab == marked_ && isEnabled()) {
        PaintMarked(painter, option);
      } else {
        painter.drawControl(QStyle::CE_TabBarTab, option);
      }
    }
  }

 private:
  double Glow() const {
    return glow_.state() == QAbstractAnimation::Running ? glow_.currentValue().toDouble() : kRest;
  }

  void PaintMarked(QStylePainter& painter, const QStyleOptionTab& option) const {
    const QColor gold(palette::kGold);
    painter.setRenderHint(QPainter::Antialiasing);
    if (manner_ == Manner::kCalling) {
      QColor halo = gold;
      halo.setAlphaF(static_cast<float>(0.28 * Glow()));
      painter.setPen(Qt::NoPen);
      painter.setBrush(halo);
      painter.drawRoundedRect(QRectF(option.rect).adjusted(2, 3, -2, -4), 7, 7);
    }
    painter.drawControl(QStyle::CE_TabBarTabShape, option);
    const bool in_front = option.state & QStyle::State_Selected;
    if ((in_front || manner_ == Manner::kCalling) && !(option.state & QStyle::State_HasFocus)) {
      painter.fillRect(QRect(option.rect.left(), option.rect.bottom() - 2, option.rect.width(), 3),
                       gold);
    }
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    painter.setFont(bold);
    painter.setPen(gold);
    painter.drawText(style()->subElementRect(QStyle::SE_TabBarTabText, &option, this),
                     static_cast<int>(Qt::AlignCenter) | Qt::TextShowMnemonic, option.text);
  }

  int marked_ = -1;
  Manner manner_ = Manner::kStill;
  QString unmarked_tip_;  // of the marked tab
  QVariantAnimation glow_;
};

MarkedTabs::MarkedTabs(QWidget* parent) : QTabWidget(parent), bar_(new Bar(this)) {
  setTabBar(bar_);
}

void MarkedTabs::Mark(int tab, Manner manner, const QString& why) { bar_->Mark(tab, manner, why); }

int MarkedTabs::Marked() const { return bar_->Marked(); }

}  // namespace frostmark
