// A dialog as the window shows it, as a picture.
#pragma once

#include <QImage>

namespace zephyl {

class TDialog;

// dialog: has been told that it opens. scale: device pixels for one of the desktop's units; 1 is an ordinary
// screen, 2 a dense one. The title stands above, in a plain frame. There must be a QApplication.
QImage dialog_picture(TDialog& dialog, int scale);

}  // namespace zephyl
