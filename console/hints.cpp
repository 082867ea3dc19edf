#include "console/hints.h"

namespace frostmark {
namespace {

bool IsList(const Control& control) {
  return control.Kind() == ControlKind::kListBox || control.Kind() == ControlKind::kFileListBox;
}

}  // namespace

bool LeftOut(const Control& control) {
  const char* const in_drawing = control.called().in_drawing;
  return in_drawing != nullptr && *in_drawing == '\0';
}

std::string HeadingOf(const Control& control) {
  const Called& called = control.called();
  if (called.in_drawing != nullptr) return called.in_drawing;
  const std::string words = *called.words == '\0' ? control.Name() : called.words;
  return IsList(control) && !words.ends_with('?') ? words + ":" : words;
}

std::string OfferedAs(const Control& control, const std::string& otherwise) {
  return *control.called().words != '\0' ? control.called().words : otherwise;
}

bool GrowsAtItsEnd(const Control& list) { return list.FullName() == "FDraft.Events"; }

bool SelectionCounts(const Control& list) {
  return list.Name() == "MainRoster" || list.Name() == "TrainingRoster";
}

}  // namespace frostmark
