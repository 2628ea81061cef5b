// A control of a dialog as a widget of the desktop's kind. It shows what the control holds, and tells what
// the user does.
#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <vector>

class QLabel;
class QWidget;

namespace zephyl {

class TDialog;
struct TControl;

// Whoever shows the dialog.
class TDialogUser {
 public:
  virtual ~TDialogUser() = default;
  // The user did something: `act` does it by the functions of dialog.h, and all widgets follow. Nothing
  // happens while the widgets follow: what they signal then is no doing of the user.
  virtual void act(const std::function<void(TDialog&)>& act) = 0;
  // Device pixels for a pixel of a picture.
  virtual int picture_zoom() const = 0;
};

class TControlWidget {
 public:
  TControlWidget(TDialogUser& user, int index) : user_(user), index_(index) {}
  virtual ~TControlWidget() = default;
  TControlWidget(const TControlWidget&) = delete;
  TControlWidget& operator=(const TControlWidget&) = delete;

  // Shows what the control holds now. label: with its mnemonic.
  void sync(const TControl& control, const QString& label);
  // What a screen reader calls the control.
  virtual void set_name(const QString& name);

  // What stands in the layout; the label beside or above it, null where it has none. All have one parent:
  // Qt's screen reader interface looks for labels among the neighbours only.
  QWidget* body() const { return body_; }
  QLabel* caption() const { return caption_; }
  // What goes with the body, on its right or above it; null where there is nothing.
  QWidget* companion() const { return companion_; }
  // What the keyboard reaches, in order; the last is where it begins. Empty if there is nothing to do.
  const std::vector<QWidget*>& tab_stops() const { return tab_stops_; }

  // A label in front, which leads to the control. parent: that of the body.
  void add_caption(QWidget* parent);

 protected:
  virtual void show(const TControl& control, const QString& label) = 0;
  void act(const std::function<void(TDialog&)>& act) { user_.act(act); }

  TDialogUser& user_;
  int index_;
  // Whether the companion shows when the control does.
  virtual bool shows_companion() const { return companion_; }

  QWidget* body_ = nullptr;
  QWidget* companion_ = nullptr;
  QLabel* caption_ = nullptr;
  std::vector<QWidget*> tab_stops_;
};

// All widgets belong to `parent`.
std::unique_ptr<TControlWidget> make_control_widget(TDialogUser& user, int index, const TControl& control,
                                                    QWidget* parent);

// One for each kind; control_widget.cpp chooses.
std::unique_ptr<TControlWidget> make_words(TDialogUser& user, int index, QWidget* parent);
std::unique_ptr<TControlWidget> make_text(TDialogUser& user, int index, const TControl& control,
                                          QWidget* parent);
std::unique_ptr<TControlWidget> make_edit(TDialogUser& user, int index, const TControl& control,
                                          QWidget* parent);
std::unique_ptr<TControlWidget> make_combo(TDialogUser& user, int index, QWidget* parent);
std::unique_ptr<TControlWidget> make_list(TDialogUser& user, int index, const TControl& control,
                                          QWidget* parent);
std::unique_ptr<TControlWidget> make_table(TDialogUser& user, int index, const TControl& control,
                                           QWidget* parent);
std::unique_ptr<TControlWidget> make_mark(TDialogUser& user, int index, const TControl& control,
                                          QWidget* parent);
std::unique_ptr<TControlWidget> make_button(TDialogUser& user, int index, const TControl& control,
                                            QWidget* parent);
std::unique_ptr<TControlWidget> make_slider(TDialogUser& user, int index, QWidget* parent);
std::unique_ptr<TControlWidget> make_picture(TDialogUser& user, int index, QWidget* parent);

}  // namespace zephyl
