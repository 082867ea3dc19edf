#include "desktop/delegates/scout_delegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>
#include <array>

#include "desktop/painting/row_text.h"
#include "records/lines/player_record.h"
#include "records/record_list.h"

namespace frostmark {
namespace {

struct Skill {
  const char* name;
  Field field;
};

constexpr std::array kSkills = {
    Skill{"Passing", Field::kPassing}, Skill{"Shooting", Field::kShooting},
    Skill{"Defense", Field::kDefense}, Skill{"Agility", Field::kAgility}};

// The skills of RECORD under its name, as a page of markup.
QString PageOf(const std::string& record) {
  QString page = "<p style='white-space:pre'><b>" +
                 Shown(FieldView(record, Field::kName)).toHtmlEscaped() + "</b></p><table>";
  for (const Skill& skill : kSkills) {
    page += QStringLiteral("<tr><td>%1&nbsp;&nbsp;</td><td align='right'>%2</td></tr>")
                .arg(skill.name, Shown(FieldView(record, skill.field)).toHtmlEscaped());
  }
  return page + "</table>";
}

}  // namespace

bool ScoutDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                              const QStyleOptionViewItem& option, const QModelIndex& index) {
  const std::string record = index.isValid() ? records_.List(index.row()) : std::string();
  if (event->type() != QEvent::ToolTip || record.empty()) {
    return PlayerDelegate::helpEvent(event, view, option, index);
  }
  QToolTip::showText(event->globalPos(), PageOf(record), view);
  return true;
}

}  // namespace frostmark
