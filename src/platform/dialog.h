// Dialogs as data: an id, a title, a row of controls with their values, and a procedure that is told what the user did
// and changes controls in answer. Whoever opens a dialog builds it and calls `platform().run_dialog`; a driver has one
// renderer for all of them and knows none by name.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/surface.h"

namespace zephyl {

enum TControlKind {
  CONTROL_LABEL,    // words that stand for themselves: `label`
  CONTROL_TEXT,     // something to read: `text`, with `label` in front
  CONTROL_EDIT,     // something to write: `text`
  CONTROL_COMBO,    // one of `rows`, folded away
  CONTROL_LIST,     // one of `rows`, in sight
  CONTROL_TABLE,    // one of `rows`; a tab separates its cells, `columns` heads them
  CONTROL_CHECK,    // `checked`
  CONTROL_RADIO,    // `checked`, one in each `group`
  CONTROL_BUTTON,   // pressed
  CONTROL_SLIDER,   // `value` from `minimum` to `maximum`
  CONTROL_PICTURE   // `picture`, shown pixel by pixel
};

enum TButtonRole {
  BUTTON_PLAIN,
  BUTTON_DEFAULT,  // what Enter presses
  BUTTON_CANCEL    // what Escape and the window's own close button press
};

struct TColumn {
  std::string heading;
  int width = 0;  // in pixels of the picture; 0: as wide as its text
};

struct TControl {
  TControlKind kind = CONTROL_LABEL;
  std::string label;               // as it shows ("Decimal Digits:"); names the control to a screen reader
  std::string text;                // of text and edit; lines are separated by '\n'
  std::vector<std::string> rows;   // of combo, list and table
  std::vector<TColumn> columns;    // of table
  int selected = -1;               // row of combo, list and table; -1 none
  int value = 0, minimum = 0, maximum = 0;  // of slider
  bool checked = false;            // of check and radio
  int group = 0;                   // of radio
  TButtonRole role = BUTTON_PLAIN;  // of button
  std::vector<TSurface> picture;   // of picture: none or one
  int text_limit = 0;              // of edit: the most characters (of UTF-8), 0 any number
  int lines = 1;                   // height of text, edit, list and table, in lines
  bool scrolls = false;            // of table: its rows are a window on more of them, which the procedure moves
  bool beside = false;             // stands to the right of the control before it, not below
  bool enabled = true;
  bool visible = true;
};

enum TDialogEventKind {
  DIALOG_OPENED,   // once, before it shows
  CONTROL_CHANGED,  // the user chose a row, edited a text, moved a slider, set a mark; the control has its new value
  CONTROL_ACTIVATED,  // a button was pressed, or a row of a list or table was double-clicked
  CONTROL_SCROLLED,  // the user moved beyond the rows of a table that `scrolls`
  DIALOG_TICK      // `tick_interval` has passed
};

struct TDialogEvent {
  TDialogEventKind kind = DIALOG_OPENED;
  int control = -1;  // index in `controls`
  int rows = 0;      // of CONTROL_SCROLLED: how far; down, or up for less than 0
};

constexpr int DIALOG_CANCELLED = -1;

class TDialog {
 public:
  using TProcedure = std::function<void(TDialog& dialog, const TDialogEvent& event)>;

  // id: the number that other parts know the dialog by.
  TDialog(int id, std::string title) : id_(id), title(std::move(title)) {}

  int id() const { return id_; }
  // Appends a control; its index is what the procedure is told.
  int add(TControl control);
  TControl& operator[](int control) { return controls[static_cast<std::size_t>(control)]; }
  const TControl& operator[](int control) const { return controls[static_cast<std::size_t>(control)]; }
  int count() const { return static_cast<int>(controls.size()); }

  // Ends the dialog with a result; DIALOG_CANCELLED is what a cancel button without a word of the procedure gives.
  void close(int result);
  bool closed() const { return closed_; }
  int result() const { return result_; }

  // What a renderer calls, after it has put the user's change into the control. A pressed button of the role
  // BUTTON_CANCEL closes the dialog if the procedure leaves it open; one of the role BUTTON_DEFAULT likewise, with
  // result 0, unless `keep_open` was called. The row of a list that was double-clicked presses the default button
  // under the same condition. A closed dialog is told nothing more.
  void tell(TDialogEventKind kind, int control = -1, int rows = 0);
  // Of the procedure: what was pressed doesn't close the dialog (a field could not be read).
  void keep_open() { keep_open_ = true; }

 private:
  int id_;
  bool closed_ = false;
  bool keep_open_ = false;
  int result_ = DIALOG_CANCELLED;

  void after_activation(int control);

 public:
  std::string title;
  std::vector<TControl> controls;
  TProcedure procedure;            // may be empty
  std::uint32_t tick_interval = 0;  // milliseconds, 0 for none
  int focus = -1;                  // the control that has the keyboard at first; -1 the first that can
};

// Controls ready made. One of rows opens on row `selected`, or on the row nearest to it that there is.
TControl label_control(std::string text);
TControl text_control(std::string label, std::string text, int lines = 1);
TControl edit_control(std::string label, std::string text, int limit = 0);
TControl combo_control(std::string label, std::vector<std::string> rows, int selected = 0);
TControl list_control(std::string label, std::vector<std::string> rows, int selected = 0);
TControl table_control(std::string label, std::vector<TColumn> columns, std::vector<std::string> rows);
TControl check_control(std::string label, bool checked);
TControl radio_control(std::string label, int group, bool checked);
TControl button_control(std::string label, TButtonRole role = BUTTON_PLAIN);
TControl slider_control(std::string label, int minimum, int maximum, int value);
TControl picture_control(std::string label, TSurface picture);
// The control, to the right of the one before it.
TControl beside(TControl control);
// "OK", the default, and "Cancel" beside it.
void add_ok_cancel(TDialog& dialog);

// Other rows for a combo, list or table; for procedures.
void set_rows(TControl& control, std::vector<std::string> rows, int selected = 0);
// The selected row, "" if none is.
std::string selected_text(const TControl& control);

// The user's acts, for renderers, scripts and tests: each puts the value into the control and tells the procedure.
// False if the control can't do it: of another kind, disabled, hidden, a row that isn't there.
bool choose_row(TDialog& dialog, int control, int row);
bool set_text(TDialog& dialog, int control, const std::string& text);
bool set_value(TDialog& dialog, int control, int value);
// A radio button can only be set; its fellows of the group are cleared.
bool set_checked(TDialog& dialog, int control, bool on);
bool press_button(TDialog& dialog, int control);
// A double click on the selected row of a list or table.
bool activate_row(TDialog& dialog, int control);
// Moves the window of a table that scrolls.
bool scroll_rows(TDialog& dialog, int control, int rows);
// Presses the cancel button, or where there is none closes the dialog.
void cancel_dialog(TDialog& dialog);
// The index of the control that a script or a test names: its label, with or without the last colon, or "#N". Among
// namesakes the first that can be used; a mere label comes last. -1 if there is none.
int find_control(const TDialog& dialog, const std::string& name);
// Presses the default button; false if there is none.
bool accept_dialog(TDialog& dialog);

}  // namespace zephyl
