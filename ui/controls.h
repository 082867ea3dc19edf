#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/record_list.h"
#include "ui/control.h"

namespace frostmark {

// A control with one text on it: the caption, or the text of a box.
class CaptionedControl : public Control {
 public:
  CaptionedControl(Place place, ControlKind kind, std::string name, std::string caption,
                   Start start, Called called = {});

  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption);

 private:
  std::string caption_;
};

class Label : public CaptionedControl {
 public:
  Label(Place place, std::string name, std::string caption = "", Start start = Start::kShown)
      : CaptionedControl(place, ControlKind::kLabel, std::move(name), std::move(caption), start) {}
  Label(Place place, std::string name, std::string caption, Called called)
      : CaptionedControl(place, ControlKind::kLabel, std::move(name), std::move(caption),
                         Start::kShown, called) {}

  // What a person's click does.
  void Click() { Raise(OnClick); }
  Handler OnClick;
};

class Button : public CaptionedControl {
 public:
  Button(Place place, std::string name, std::string caption, Start start = Start::kShown)
      : CaptionedControl(place, ControlKind::kButton, std::move(name), std::move(caption), start) {}
  Button(Place place, std::string name, std::string caption, Called called)
      : CaptionedControl(place, ControlKind::kButton, std::move(name), std::move(caption),
                         Start::kShown, called) {}

  // What a person's press does.
  void Click() { Raise(OnClick); }
  Handler OnClick;
};

class CheckBox : public CaptionedControl {
 public:
  CheckBox(Place place, std::string name, std::string caption, Start start = Start::kShown)
      : CaptionedControl(place, ControlKind::kCheckBox, std::move(name), std::move(caption),
                         start) {}
};

// A box drawn around controls, with a caption. Hidden, it hides what lies in it.
class Frame : public CaptionedControl {
 public:
  Frame(Place place, std::string name, std::string caption, Start start = Start::kShown)
      : CaptionedControl(place, ControlKind::kFrame, std::move(name), std::move(caption), start) {}
};

class Picture : public Control {
 public:
  Picture(Place place, std::string name, Called called)
      : Control(place, ControlKind::kPicture, std::move(name), Start::kShown, called) {}

  // What a person's click does.
  void Click() { Raise(OnClick); }
  Handler OnClick;
};

// A line of text that the user can edit: a part of a team's name, and so of a file's. Its caption
// is its text.
class TextBox : public CaptionedControl {
 public:
  // MAX_LENGTH: the most characters that the user can type; 0 is without limit.
  TextBox(Place place, std::string name, std::string text, Called called, int max_length = 0)
      : CaptionedControl(place, ControlKind::kTextBox, std::move(name), std::move(text),
                         Start::kShown, called),
        max_length_(max_length) {}

  const std::string& Text() const { return Caption(); }
  void SetText(std::string_view text) { SetCaption(text); }
  int MaxLength() const { return max_length_; }

  // What a person's typing results in: what the box takes of TEXT (UTF-8), cut at the limit.
  void Type(std::string_view text);
  // TEXT (UTF-8) without the characters that the box does not take: "/", which no file name holds,
  // and control characters.
  static std::string TakenOf(std::string_view text);

  // Asks the front end to give the box the input focus.
  void SetFocus() {
    if (OnFocus) OnFocus();
  }
  Handler OnFocus;  // set by the front end

 private:
  int max_length_;
};

// A text with a list to choose it from. Its caption is its text, which need not be an item.
class ComboBox : public CaptionedControl {
 public:
  ComboBox(Place place, std::string name, std::string text, std::vector<std::string> items,
           Called called)
      : CaptionedControl(place, ControlKind::kComboBox, std::move(name), std::move(text),
                         Start::kShown, called),
        items_(std::move(items)) {}

  const std::string& Text() const { return Caption(); }
  void SetText(std::string_view text) { SetCaption(text); }
  const std::vector<std::string>& Items() const { return items_; }

 private:
  std::vector<std::string> items_;
};

// A list on a screen. Most of them are never shown: they are the game's memory.
class ListBox : public Control, public RecordList {
 public:
  ListBox(Place place, std::string name, Start start = Start::kShown)
      : ListBox(place, ControlKind::kListBox, std::move(name), start) {}
  ListBox(Place place, std::string name, Called called)
      : ListBox(place, ControlKind::kListBox, std::move(name), Start::kShown, called) {}

  Handler OnClick;
  Handler OnDoubleClick;

  // What a person's click on item I does: it is selected, then OnClick runs.
  void Select(int i);
  // What a double click on item I does: a click, then OnDoubleClick.
  void DoubleClick(int i);

  using RecordList::SetObserver;  // the items' observer; the control's is Control's

 protected:
  ListBox(Place place, ControlKind kind, std::string name, Start start, Called called = {})
      : Control(place, kind, std::move(name), start, called) {}
};

// Two lists of one name, told apart by an element index: element 0, "List1(0)", is shown, and
// element 1 holds the records of its lines, item for item.
class ListPair {
 public:
  ListPair(Place place, const std::string& name, Called called)
      : shown(place, name + "(0)", called), records(place, name + "(1)", Start::kNeverShown) {}

  void SetEnabled(bool enabled) {
    shown.SetEnabled(enabled);
    records.SetEnabled(enabled);
  }

  ListBox shown;
  ListBox records;
};

// The listing of a folder: the names of all its files, without those of folders, in alphabetical
// order without regard to case. It keeps what it read until its path is set again.
class FileListBox : public ListBox {
 public:
  FileListBox(Place place, std::string name, Start start = Start::kShown)
      : ListBox(place, ControlKind::kFileListBox, std::move(name), start) {}
  FileListBox(Place place, std::string name, Called called)
      : ListBox(place, ControlKind::kFileListBox, std::move(name), Start::kShown, called) {}

  const std::string& Path() const { return path_; }
  // Reads the folder PATH. A folder that cannot be read is an empty one.
  void SetPath(std::string path);

 private:
  std::string path_;
};

class TabStrip : public Control {
 public:
  TabStrip(Place place, std::string name, std::vector<std::string> tabs, Called called)
      : Control(place, ControlKind::kTabStrip, std::move(name), Start::kShown, called),
        tabs_(std::move(tabs)) {}

  const std::vector<std::string>& Tabs() const { return tabs_; }
  int Front() const { return front_; }
  const std::string& FrontTab() const { return tabs_[static_cast<std::size_t>(front_)]; }
  // Brings tab I (from 0) to the front.
  void SetFront(int i);

  // The page under tab I, for the controls that lie on it.
  Place Page(int i) { return {*place().screen, *this, i}; }

  Handler OnMouseDown;

 private:
  std::vector<std::string> tabs_;
  int front_ = 0;
};

class ProgressBar : public Control {
 public:
  // VALUE runs from 0 to MAX.
  ProgressBar(Place place, std::string name, int max, Called called)
      : Control(place, ControlKind::kProgressBar, std::move(name), Start::kShown, called),
        max_(max) {}

  int Max() const { return max_; }
  int Value() const { return value_; }
  void SetValue(int value);

 private:
  int max_;
  int value_ = 0;
};

class ScrollBar : public Control {
 public:
  ScrollBar(Place place, std::string name, Start start = Start::kShown)
      : Control(place, ControlKind::kScrollBar, std::move(name), start) {}
};

// Calls OnTick every interval while it is enabled. It never ticks inside its own tick.
class Timer : public Control {
 public:
  Timer(Place place, std::string name, int interval_ms)
      : Control(place, ControlKind::kTimer, std::move(name), Start::kDisabled),
        interval_ms_(interval_ms) {}

  int IntervalMs() const { return interval_ms_; }
  // What the clock does at the end of an interval.
  void Tick() { Raise(OnTick); }
  Handler OnTick;

 private:
  int interval_ms_;
};

}  // namespace frostmark
