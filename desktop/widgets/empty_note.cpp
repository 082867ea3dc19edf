#include "desktop/widgets/empty_note.h"

#include <QAbstractItemView>
#include <QEvent>
#include <chrono>

#include "desktop/widgets/roles.h"

namespace frostmark {

namespace {

constexpr std::chrono::milliseconds kRebuildTime{500};

}  // namespace

EmptyNote::EmptyNote(QAbstractItemView& list, const QString& why)
    : QLabel(why, list.parentWidget()), list_(list) {
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setAlignment(Qt::AlignCenter);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  SetLook(*this, "role", "note");
  wait_.setSingleShot(true);
  wait_.setInterval(kRebuildTime);
  connect(&wait_, &QTimer::timeout, this, [this] { setVisible(IsDue()); });
  const QAbstractItemModel* rows = list.model();
  connect(rows, &QAbstractItemModel::rowsInserted, this, &EmptyNote::Follow);
  connect(rows, &QAbstractItemModel::rowsRemoved, this, &EmptyNote::Follow);
  connect(rows, &QAbstractItemModel::modelReset, this, &EmptyNote::Follow);
  list_.installEventFilter(this);
  Place();
  setVisible(IsDue());
}

bool EmptyNote::IsDue() const {
  const QAbstractItemModel* rows = list_.model();
  return !list_.isHidden() && rows != nullptr && rows->rowCount() == 0;
}

void EmptyNote::Follow() {
  if (!IsDue()) {
    wait_.stop();
    hide();
  } else if (!isVisible()) {
    wait_.start();
  }
}

void EmptyNote::Place() {
  const int margin = list_.fontMetrics().height();
  setGeometry(list_.geometry().adjusted(margin, margin, -margin, -margin));
  raise();
}

bool EmptyNote::eventFilter(QObject* /*watched*/, QEvent* event) {
  switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
      Place();
      break;
    case QEvent::HideToParent:
    case QEvent::ShowToParent:
      Follow();
      break;
    default:
      break;
  }
  return false;
}

}  // namespace frostmark
