#pragma once

#include <QObject>

#include "ui/controls.h"

class QAbstractButton;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QTabWidget;

namespace frostmark {

class Guard;
class ListView;
class RecordListModel;
class ScreenForm;

// What every binding is given.
struct BindingContext {
  ScreenForm& form;
  Guard& guard;
};

// One control and its widget. A binding shows on the widget whatever the control becomes and brings
// the user's doings back. This base shows what all controls have: visible and enabled; it is the
// whole binding of a picture.
class Binding : public QObject, public Control::Observer {
  Q_OBJECT

 public:
  Binding(Control& control, QWidget& widget, BindingContext context);

  // Shows the control as it is and follows it from now on.
  void Start();

  void ControlChanged(Control& control) final;

 protected:
  // Brings the widget to the control's present state.
  virtual void Refresh();

  // What the control is called, for a screen reader.
  QString Words() const;

  Guard& guard() const { return context_.guard; }
  ScreenForm& form() const { return context_.form; }

 private:
  Control& control_;
  QWidget& widget_;
  BindingContext context_;
};

class LabelBinding : public Binding {
 public:
  LabelBinding(Label& label, QLabel& widget, BindingContext context);

 protected:
  void Refresh() override;

 private:
  Label& label_;
  QLabel& widget_;
};

// A button, or a label that can be clicked.
class ButtonBinding : public Binding {
 public:
  ButtonBinding(CaptionedControl& control, const Handler& on_click, QAbstractButton& widget,
                BindingContext context);

 protected:
  void Refresh() override;

 private:
  CaptionedControl& captioned_;
  QAbstractButton& button_;
};

class ListBinding : public Binding {
 public:
  ListBinding(ListBox& list, ListView& view, BindingContext context);

 private:
  void Activate(int row, bool by_key);
  void ShowSelected();

  ListBox& list_;
  ListView& view_;
  RecordListModel* model_;
};

class TextBinding : public Binding {
 public:
  TextBinding(TextBox& text_box, QLineEdit& edit, BindingContext context);

 protected:
  void Refresh() override;

 private:
  TextBox& text_box_;
  QLineEdit& edit_;
};

// A combo box may hold a text that is none of its items; the widget then shows it as a placeholder.
class ComboBinding : public Binding {
 public:
  ComboBinding(ComboBox& combo, QComboBox& widget, BindingContext context);

 protected:
  void Refresh() override;

 private:
  ComboBox& combo_;
  QComboBox& widget_;
};

class FrameBinding : public Binding {
 public:
  FrameBinding(Frame& frame, QGroupBox& box, BindingContext context);

 protected:
  void Refresh() override;

 private:
  Frame& frame_;
  QGroupBox& box_;
};

class TabBinding : public Binding {
 public:
  TabBinding(TabStrip& strip, QTabWidget& tabs, BindingContext context);

  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void Refresh() override;

 private:
  TabStrip& strip_;
  QTabWidget& tabs_;
};

class BarBinding : public Binding {
 public:
  BarBinding(ProgressBar& bar, QProgressBar& widget, BindingContext context);

 protected:
  void Refresh() override;

 private:
  ProgressBar& bar_;
  QProgressBar& widget_;
};

}  // namespace frostmark
