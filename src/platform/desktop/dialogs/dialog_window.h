// The one window for all dialogs: a widget of the desktop's kind for each control. Whatever the dialog's
// procedure changes, the widgets follow.
#pragma once

#include <QDialog>
#include <QTimer>

#include "platform/desktop/dialogs/dialog_layout.h"

namespace zephyl {

class TDialog;

class TDialogWindow : public QDialog, private TDialogUser {
 public:
  // dialog: has been told that it opens, and outlives the window. parent: the window it stands above, the
  // calculator or another dialog; null in a picture. picture_zoom: device pixels for a pixel of a picture.
  TDialogWindow(TDialog& dialog, QWidget* parent, int picture_zoom);
  ~TDialogWindow() override;

  // Shows it until the dialog is closed.
  void run();

  // True if the user wished by Escape or the close button that what the dialog is working on ends. Nothing else
  // that the user does is heard meanwhile.
  bool cancel_wished() const { return cancel_wished_; }

  // The control whose widget this is; -1 none. And the widget that works a control, null if there is none.
  int control_of(const QWidget* widget) const;
  QWidget* widget_of(int control) const;

 protected:
  void showEvent(QShowEvent* event) override;
  // Escape, and the close button of the window.
  void reject() override;
  // Enter presses the button that has the keyboard, else the default one.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void act(const std::function<void(TDialog&)>& act) override;
  int picture_zoom() const override { return picture_zoom_; }
  void follow();
  void sync();
  void build();
  void name_controls();
  void tie_words();
  void group_radio_buttons();
  void settle_default();
  void chain_tab_stops(const std::vector<QWidget*>& stops);
  void focus_first();
  void sync_ticks();
  void place_over_calculator();

  TDialog& dialog_;
  int picture_zoom_;
  QWidget* content_ = nullptr;
  TControlWidgets widgets_;
  // Widgets of controls that the procedure has replaced: one of them may be at work just then.
  std::vector<TControlWidgets> replaced_;
  std::vector<int> shape_;  // of the controls that the widgets were made for
  QTimer ticks_;
  bool syncing_ = false;
  bool working_ = false;  // the procedure is on the stack, perhaps with another dialog above this one
  bool cancel_wished_ = false;
};

}  // namespace zephyl
