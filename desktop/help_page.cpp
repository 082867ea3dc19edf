#include "desktop/help_page.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QTextBrowser>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/keys.h"
#include "desktop/painting/palette.h"
#include "ui/controls.h"
#include "ui/screen.h"

namespace frostmark {
namespace {

QString Row(const QString& key, const QString& words) {
  return QStringLiteral("<tr><td style='color: %1'><b>%2</b></td><td>%3</td></tr>")
      .arg(QColor(palette::kGold).name(), key.toHtmlEscaped(), words.toHtmlEscaped());
}

QString TheGame() {
  QFile page(":/help.md");
  return page.open(QIODevice::ReadOnly) ? QString::fromUtf8(page.readAll()) : QString();
}

// The strip's other tabs have the digits after the first one's.
QString KeyText(const Control& control, const KeyHint& hint) {
  QString key = QString::fromLatin1(hint.key);
  if (control.Kind() != ControlKind::kTabStrip || key.isEmpty()) return key;
  const auto tabs = static_cast<int>(static_cast<const TabStrip&>(control).Tabs().size());
  return QStringLiteral("%1 to %2").arg(key).arg(key.back().digitValue() + tabs - 1);
}

}  // namespace

QString HelpPage::Keys(const Screen& screen) {
  QString rows;
  for (const Control* control : screen.Controls()) {
    const KeyHint* hint = HintOf(*control);
    if (hint == nullptr || *hint->key == '\0') continue;
    rows += Row(KeyText(*control, *hint), QString::fromLatin1(hint->words));
  }
  rows += Row("Tab", "On to the next control; Shift+Tab back");
  rows += Row("Enter, Space", "Press the button; in a list choose the row");
  rows += Row("F1", "This page");
  rows += Row("Ctrl++, Ctrl+-, Ctrl+0", "Everything larger, smaller, as usual");
  rows += Row("F11", "The whole desktop, or a window again");
  rows += Row("Ctrl+Q", "Leave Frostmark");
  return rows;
}

QTextBrowser* HelpPage::Column(const QString& name) {
  auto* column = new QTextBrowser;
  column->setObjectName(name);
  return column;
}

HelpPage::HelpPage(const Screen& screen, QWidget& over)
    : QDialog(&over, Qt::Dialog | Qt::FramelessWindowHint) {
  setObjectName("look_help");
  setWindowTitle(QStringLiteral("Help: %1").arg(QString::fromStdString(screen.Title())));
  setAttribute(Qt::WA_DeleteOnClose);
  auto* layout = new QVBoxLayout(this);
  auto* columns = new QHBoxLayout;
  auto* game = Column("look_help_game");
  game->setAccessibleName("The game in a page");
  game->setMarkdown(TheGame());
  auto* keys = Column("look_help_keys");
  keys->setAccessibleName("Keys of this screen");
  keys->setHtml(QStringLiteral("<h2>Keys of this screen</h2><table cellpadding='3'>%1</table>"
                               "<p>Frostmark %2</p>")
                    .arg(Keys(screen), QApplication::applicationVersion()));
  columns->addWidget(game, 1);
  columns->addWidget(keys, 1);
  layout->addLayout(columns);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);
  new QShortcut(QKeySequence(Qt::Key_F1), this, this, &QDialog::reject);
  game->setFocus();
  LieOver(over);
}

// As large as the window, or as large as it takes to be read over a small one.
void HelpPage::LieOver(const QWidget& over) {
  const QRect room = over.screen()->availableGeometry();
  const int line = fontMetrics().height();
  const QSize size = over.size().expandedTo({line * 44, line * 28}).boundedTo(room.size());
  QRect place(QPoint(), size);
  place.moveCenter(QRect(over.mapToGlobal(QPoint()), over.size()).center());
  place.moveLeft(std::clamp(place.left(), room.left(), room.right() + 1 - size.width()));
  place.moveTop(std::clamp(place.top(), room.top(), room.bottom() + 1 - size.height()));
  setGeometry(place);
}

}  // namespace frostmark
