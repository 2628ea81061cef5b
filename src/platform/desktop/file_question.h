// The desktop's own file dialog.
#pragma once

#include <string>

class QString;
class QWidget;

namespace zephyl {

struct TFileQuestion;

// False on Cancel. parent: the window it stands above. folder: where it begins, unless a file was chosen
// before. A name typed without the extension gets it.
bool ask_for_file(const TFileQuestion& question, QWidget* parent, const QString& folder, std::string& path);

}  // namespace zephyl
