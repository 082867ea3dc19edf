#include "desktop/bindings.h"

#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QValidator>
#include <algorithm>

#include "desktop/guard.h"
#include "desktop/keys.h"
#include "desktop/list_model.h"
#include "desktop/list_view.h"
#include "desktop/screen_form.h"

namespace frostmark {
namespace {

// The game's texts are bytes. Bytes that are not UTF-8 show as replacement characters.
QString Shown(const std::string& text) { return QString::fromStdString(text); }

// A button's text, in which "&" marks the letter of its Alt key where the caption has it and is
// more than a mark.
QString ButtonText(const std::string& caption, QChar letter_of_key) {
  QString text = Shown(caption);
  const qsizetype letter = letter_of_key.isNull() || text.size() == 1
                               ? -1
                               : text.indexOf(letter_of_key, 0, Qt::CaseInsensitive);
  text.replace('&', "&&");
  if (letter >= 0) text.insert(letter, '&');
  return text;
}

// Keeps an edit to the characters that its text box takes: others do not appear, whether they are
// typed or pasted.
class CharactersOfTextBox : public QValidator {
 public:
  using QValidator::QValidator;

  State validate(QString& input, int& cursor) const override {
    const auto taken = [](const QString& text) {
      return QString::fromStdString(TextBox::TakenOf(text.toStdString()));
    };
    cursor = static_cast<int>(taken(input.left(cursor)).size());
    input = taken(input);
    return Acceptable;
  }
};

}  // namespace

Binding::Binding(Control& control, QWidget& widget, BindingContext context)
    : control_(control), widget_(widget), context_(context) {
  widget_.setAccessibleName(Words());
  widget_.setToolTip(TipOf(control_));
  if (HintOf(control_) != nullptr) widget_.setAccessibleDescription(TipOf(control_));
}

QString Binding::Words() const { return QString::fromUtf8(control_.called().words); }

void Binding::Start() {
  Refresh();
  control_.SetObserver(this);
}

void Binding::ControlChanged(Control& /*control*/) {
  Refresh();
  form().NoteChange();
}

void Binding::Refresh() {
  widget_.setEnabled(control_.Enabled());
  widget_.setVisible(control_.Visible());
}

LabelBinding::LabelBinding(Label& label, QLabel& widget, BindingContext context)
    : Binding(label, widget, context), label_(label), widget_(widget) {
  widget_.setTextFormat(Qt::PlainText);
}

void LabelBinding::Refresh() {
  Binding::Refresh();
  const QString caption = Shown(label_.Caption());
  widget_.setText(caption);
  // A label offers a screen reader nothing but its name, so the name tells the value too.
  if (!Words().isEmpty() && !caption.isEmpty()) {
    widget_.setAccessibleName(Words() + ": " + caption);
  } else {
    widget_.setAccessibleName(Words());
  }
}

ButtonBinding::ButtonBinding(CaptionedControl& control, const Handler& on_click,
                             QAbstractButton& widget, BindingContext context)
    : Binding(control, widget, context), captioned_(control), button_(widget) {
  connect(&button_, &QAbstractButton::clicked, this,
          [this, &on_click] { guard().Call([&on_click] { Raise(on_click); }); });
}

void ButtonBinding::Refresh() {
  Binding::Refresh();
  button_.setText(ButtonText(captioned_.Caption(), AltLetter(HintOf(captioned_))));
  // The words for a press stand instead of a mark; a caption of some length is told beside them.
  const QString caption = Shown(captioned_.Caption());
  if (!Words().isEmpty() && caption.size() > 1) {
    button_.setAccessibleDescription(caption + ". " + TipOf(captioned_));
  }
}

ListBinding::ListBinding(ListBox& list, ListView& view, BindingContext context)
    : Binding(list, view, context),
      list_(list),
      view_(view),
      model_(new RecordListModel(list, &view)) {
  view_.setModel(model_);
  ShowSelected();
  connect(model_, &RecordListModel::SelectionMoved, this, &ListBinding::ShowSelected);
  connect(model_, &RecordListModel::ItemsChanged, &form(), &ScreenForm::NoteChange);
  connect(&view_, &ListView::Chosen, this,
          [this](int row) { guard().Call([this, row] { list_.Select(row); }); });
  connect(&view_, &ListView::Activated, this, &ListBinding::Activate);
}

void ListBinding::Activate(int row, bool by_key) {
  guard().Call([this, row, by_key] {
    // The first half of a double click with the mouse has already come as a click of its own.
    if (!by_key && list_.ListIndex() == row) {
      Raise(list_.OnDoubleClick);
    } else {
      list_.DoubleClick(row);
    }
  });
}

void ListBinding::ShowSelected() {
  view_.ShowSelected(list_.ListIndex());
  form().NoteChange();
}

TextBinding::TextBinding(TextBox& text_box, QLineEdit& edit, BindingContext context)
    : Binding(text_box, edit, context), text_box_(text_box), edit_(edit) {
  if (text_box_.MaxLength() > 0) edit_.setMaxLength(text_box_.MaxLength());
  edit_.setValidator(new CharactersOfTextBox(&edit_));
  text_box_.OnFocus = [this] { edit_.setFocus(); };
  connect(&edit_, &QLineEdit::textEdited, this, [this](const QString& text) {
    guard().Call([&] { text_box_.Type(text.toStdString()); });
  });
}

void TextBinding::Refresh() {
  Binding::Refresh();
  const QString text = Shown(text_box_.Text());
  if (edit_.text() != text) edit_.setText(text);
}

ComboBinding::ComboBinding(ComboBox& combo, QComboBox& widget, BindingContext context)
    : Binding(combo, widget, context), combo_(combo), widget_(widget) {
  widget_.clear();
  for (const std::string& item : combo_.Items()) widget_.addItem(Shown(item));
  connect(&widget_, &QComboBox::activated, this, [this](int row) {
    guard().Call([&] { combo_.SetText(combo_.Items()[static_cast<std::size_t>(row)]); });
  });
}

void ComboBinding::Refresh() {
  Binding::Refresh();
  const auto& items = combo_.Items();
  const auto item = std::find(items.begin(), items.end(), combo_.Text());
  widget_.setPlaceholderText(Shown(combo_.Text()));
  widget_.setCurrentIndex(item == items.end() ? -1 : static_cast<int>(item - items.begin()));
}

FrameBinding::FrameBinding(Frame& frame, QGroupBox& box, BindingContext context)
    : Binding(frame, box, context), frame_(frame), box_(box) {}

void FrameBinding::Refresh() {
  Binding::Refresh();
  box_.setTitle(Shown(frame_.Caption()).replace('&', "&&"));
}

TabBinding::TabBinding(TabStrip& strip, QTabWidget& tabs, BindingContext context)
    : Binding(strip, tabs, context), strip_(strip), tabs_(tabs) {
  for (std::size_t i = 0; i < strip_.Tabs().size(); ++i) {
    const QString tab = Shown(strip_.Tabs()[i]);
    tabs_.setTabText(static_cast<int>(i), tab);
    tabs_.widget(static_cast<int>(i))->setAccessibleName(tab);
  }
  tabs_.tabBar()->setAccessibleName(Words());
  tabs_.tabBar()->setAccessibleDescription(TipOf(strip));
  // Whatever lies on a page without a tooltip would show that of the strip.
  tabs_.setToolTip({});
  tabs_.installEventFilter(this);
  tabs_.tabBar()->installEventFilter(this);
  connect(&tabs_, &QTabWidget::currentChanged, this,
          [this](int tab) { guard().Call([&] { strip_.SetFront(tab); }); });
}

void TabBinding::Refresh() {
  Binding::Refresh();
  tabs_.setCurrentIndex(strip_.Front());
}

bool TabBinding::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::MouseButtonPress || !strip_.OnMouseDown) return false;
  if (static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton) return false;
  guard().Call([this] { Raise(strip_.OnMouseDown); });
  // Beside the tabs the press ends here; on a tab it goes on and turns the page.
  return watched == &tabs_;
}

BarBinding::BarBinding(ProgressBar& bar, QProgressBar& widget, BindingContext context)
    : Binding(bar, widget, context), bar_(bar), widget_(widget) {
  widget_.setRange(0, bar_.Max());
}

void BarBinding::Refresh() {
  Binding::Refresh();
  // A bar would paint itself at every step; so it waits for the next round of painting instead.
  widget_.setUpdatesEnabled(false);
  widget_.setValue(bar_.Value());
  widget_.setUpdatesEnabled(true);
}

}  // namespace frostmark
