#include "platform/desktop/desktop_platform.h"

#include <QApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QMessageBox>
#include <QThread>
#include <QUrl>
#include <chrono>
#include <clocale>
#include <utility>

#include "faceplate/hit_test.h"
#include "platform/desktop/clipboard.h"
#include "platform/desktop/dialogs/dialog_window.h"
#include "platform/desktop/file_question.h"
#include "platform/desktop/window_place.h"
#include "platform/dialog.h"
#include "platform/events.h"
#include "programs/open_file.h"

namespace zephyl {

namespace {


// On a key of the screen that shows, one that ends an evaluation.
TPoint point_that_cancels() {
  constexpr int step = 4;  // no key is smaller
  for (int y = 0; y < SCREEN_HEIGHT; y += step)
    for (int x = 0; x < SCREEN_WIDTH; x += step)
      if (tap_kind(x, y) == TAP_KEY) return {x, y};
  return {};
}

}  // namespace

// While a box is open the cursor is the usual one, and the picture is shown as it changes.
class TDesktopPlatform::TBoxOpen {
 public:
  explicit TBoxOpen(TDesktopPlatform& platform) : platform_(platform), waiting_(platform.wait_cursor_) {
    platform_.set_wait_cursor(false);
    ++platform_.boxes_open_;
  }
  ~TBoxOpen() {
    --platform_.boxes_open_;
    platform_.set_wait_cursor(waiting_);
  }
  TBoxOpen(const TBoxOpen&) = delete;
  TBoxOpen& operator=(const TBoxOpen&) = delete;

 private:
  TDesktopPlatform& platform_;
  bool waiting_;
};

TDesktopPlatform::TDesktopPlatform(std::string folder, std::string help_file)
    : folder_(std::move(folder)),
      help_file_(std::move(help_file)),
      window_([this](const TInput& input) { take(input); }, [this] { return close_wished(); }),
      announcer_(window_),
      click_(folder_ + "/click.wav") {
  // Qt takes on the user's locale. Numbers of the calculator are written with a point, whatever that says.
  std::setlocale(LC_NUMERIC, "C");
  window_.when_ring_moves([this] { announcer_.focus_moved(); });
  timer_.setSingleShot(true);
  QObject::connect(&timer_, &QTimer::timeout, [this] { round(); });
}

int TDesktopPlatform::run() {
  start();
  window_.show();
  const int code = QApplication::exec();
  stop();
  return code;
}

void TDesktopPlatform::start() {
  restore_place(window_, folder_);
  working_ = true;
  on_start();
  compose();
  working_ = false;
  wake();
}

void TDesktopPlatform::stop() {
  if (stopped_) return;
  stopped_ = true;
  save_place(window_, folder_);
  on_stop();
}

void TDesktopPlatform::take(const TInput& input) {
  queue_.push(input);
  wake();
}

void TDesktopPlatform::open(const std::string& path) {
  files_.push_back(path);
  take({INPUT_OPEN});
}

void TDesktopPlatform::open_next() {
  const std::string path = files_.front();
  files_.pop_front();
  open_file(path);
}

// While the calculator works the wish waits in the queue, where the poll of an evaluation sees it.
bool TDesktopPlatform::close_wished() {
  if (!stopped_) {
    take({INPUT_CLOSE});
    round();
  }
  return stopped_;
}

void TDesktopPlatform::wake() { timer_.start(0); }

// What goes on by itself, round by round, until an event or a picture waits or the window wants to be looked after. A
// program has many rounds in that time.
bool TDesktopPlatform::work() {
  constexpr std::uint32_t PATIENCE = 8;  // milliseconds
  constexpr int ROUNDS_A_LOOK = 8;       // between two looks at the clock
  const std::uint32_t begin = tick_count();
  for (int rounds = 1; on_idle(); ++rounds) {
    if (stopped_ || paint_requested_ || !queue_.empty()) return true;
    if (rounds % ROUNDS_A_LOOK == 0 && tick_count() - begin >= PATIENCE) return true;
  }
  return false;
}

// One round of the main loop. Boxes and the poll run event loops of their own inside of it; the timer fires
// there too, and does nothing but show the picture behind a box.
void TDesktopPlatform::round() {
  if (boxes_open_ > 0) return compose();
  if (working_ || stopped_) return;
  working_ = true;
  TInput input;
  while (!stopped_ && queue_.pop(input)) dispatch(input);
  if (!stopped_) compose();
  const bool more = !stopped_ && work();
  working_ = false;
  if (!stopped_) announcer_.look();
  if (more || paint_requested_ || !queue_.empty()) wake();
}

void TDesktopPlatform::dispatch(const TInput& input) {
  cancel_let_pass_ = false;
  switch (input.kind) {
    case INPUT_PEN_DOWN:
      return on_pen_down(input.at.x, input.at.y);
    case INPUT_PEN_MOVE:
      return on_pen_move(input.at.x, input.at.y);
    case INPUT_PEN_UP:
      return on_pen_up(input.at.x, input.at.y);
    case INPUT_CHARACTER:
      return on_char(static_cast<std::uint16_t>(input.code));
    case INPUT_ARROW:
      return on_arrow(static_cast<TArrow>(input.code));
    case INPUT_COPY:
      return copy_result();
    case INPUT_PASTE:
      return paste_clipboard();
    case INPUT_OPEN:
      return open_next();
    case INPUT_CLOSE:
      stop();
      window_.close();
  }
}

std::uint32_t TDesktopPlatform::tick_count() {
  using namespace std::chrono;
  return static_cast<std::uint32_t>(
      duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
}

TLocalTime TDesktopPlatform::local_time() {
  const QDateTime now = QDateTime::currentDateTime();
  const QDate date = now.date();
  const QTime time = now.time();
  return {date.year(),   date.month(),  date.day(),  time.hour(),
          time.minute(), time.second(), time.msec(), date.dayOfWeek() % 7};
}

void TDesktopPlatform::sleep(std::uint32_t milliseconds) { QThread::msleep(milliseconds); }

// What waits for the window to be free again doesn't concern the dialog above it.
bool TDesktopPlatform::find_pen_down(TPoint& at) const { return !open_dialog_ && queue_.find_pen_down(at); }

bool TDesktopPlatform::cancel_waits() const {
  return open_dialog_ ? open_dialog_->cancel_wished() : queue_.holds_cancel();
}

// Escape and the wish to close show themselves as a tap on a key: taps are looked for ten times as often as
// cancels.
bool TDesktopPlatform::peek_pen_down(TPoint& at) {
  QCoreApplication::processEvents();
  if (find_pen_down(at)) return true;
  if (!cancel_waits() || cancel_let_pass_) return false;
  at = point_that_cancels();
  return true;
}

void TDesktopPlatform::remove_pen_down() {
  TPoint at;
  if (find_pen_down(at))
    queue_.remove_pen_down();
  else
    cancel_let_pass_ = true;
}

bool TDesktopPlatform::peek_cancel() {
  QCoreApplication::processEvents();
  return cancel_waits();
}

void TDesktopPlatform::invalidate(bool at_once) {
  paint_requested_ = true;
  if (at_once)
    compose();
  else
    wake();
}

bool TDesktopPlatform::take_paint_request() {
  const bool was_requested = paint_requested_;
  paint_requested_ = false;
  return was_requested;
}

// Painting may itself open a box, to say that a picture is missing.
void TDesktopPlatform::compose() {
  if (composing_ || !take_paint_request()) return;
  composing_ = true;
  on_paint();
  composing_ = false;
  present(false);
}

void TDesktopPlatform::present(bool at_once) {
  if (at_once)
    window_.repaint();
  else
    window_.update();
}

void TDesktopPlatform::set_title(const char* title) { window_.setWindowTitle(QString::fromUtf8(title)); }

void TDesktopPlatform::set_wait_cursor(bool on) {
  if (on == wait_cursor_) return;
  wait_cursor_ = on;
  if (on)
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  else
    QGuiApplication::restoreOverrideCursor();
}

void TDesktopPlatform::show_message(const char* text, const char* title) {
  const TBoxOpen open(*this);
  QMessageBox box(QMessageBox::Warning, QString::fromUtf8(title), QString::fromUtf8(text), QMessageBox::Ok,
                  front_window());
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

bool TDesktopPlatform::ask_question(const char* text, const char* title) {
  const TBoxOpen open(*this);
  QMessageBox box(QMessageBox::Question, QString::fromUtf8(title), QString::fromUtf8(text),
                  QMessageBox::Yes | QMessageBox::No, front_window());
  box.setTextFormat(Qt::PlainText);
  return box.exec() == QMessageBox::Yes;
}

void TDesktopPlatform::show_help() {
  if (!help_file_.empty()) QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(help_file_)));
}

void TDesktopPlatform::run_dialog(TDialog& dialog) {
  dialog.tell(DIALOG_OPENED);
  if (dialog.closed()) return;
  const TBoxOpen open(*this);
  invalidate(false);  // the key that opened it is drawn released
  TDialogWindow window(dialog, front_window(), window_.zoom());
  TDialogWindow* const below = std::exchange(open_dialog_, &window);
  window.run();
  open_dialog_ = below;
}

bool TDesktopPlatform::choose_file(const TFileQuestion& question, std::string& path) {
  const TBoxOpen open(*this);
  invalidate(false);
  return ask_for_file(question, front_window(), QString::fromStdString(folder_), path);
}

QWidget* TDesktopPlatform::front_window() {
  QWidget* box = QApplication::activeModalWidget();
  return box ? box : &window_;
}

}  // namespace zephyl
