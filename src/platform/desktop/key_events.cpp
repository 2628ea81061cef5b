#include "platform/desktop/key_events.h"

#include <QKeyEvent>
#include <QKeySequence>

#include "platform/events.h"

namespace zephyl {

namespace {

struct TArrowKey {
  int key;
  TArrow arrow;
};

constexpr TArrowKey ARROW_KEYS[] = {{Qt::Key_Right, ARROW_RIGHT},   {Qt::Key_Left, ARROW_LEFT},
                                    {Qt::Key_Delete, ARROW_DELETE}, {Qt::Key_Up, ARROW_UP},
                                    {Qt::Key_Down, ARROW_DOWN},     {Qt::Key_Home, ARROW_HOME}};

struct TControlKey {
  int key;
  char16_t character;
};

constexpr TControlKey CONTROL_KEYS[] = {
    {Qt::Key_Backspace, 8}, {Qt::Key_Return, 13}, {Qt::Key_Enter, 13}, {Qt::Key_Escape, ESCAPE_CHARACTER}};

bool modified(const QKeyEvent& event) {
  return event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
}

bool input_of_arrow(int key, TInput& input) {
  for (const TArrowKey& row : ARROW_KEYS) {
    if (key != row.key) continue;
    input = {INPUT_ARROW, {}, row.arrow};
    return true;
  }
  return false;
}

}  // namespace

bool input_of_key(const QKeyEvent& event, TInput& input) {
  const bool copies = event.matches(QKeySequence::Copy);
  if (copies || event.matches(QKeySequence::Paste)) {
    input = {copies ? INPUT_COPY : INPUT_PASTE};
    return true;
  }
  return !modified(event) && input_of_arrow(event.key(), input);
}

QString characters_of_key(const QKeyEvent& event) {
  if (modified(event)) return {};
  for (const TControlKey& row : CONTROL_KEYS)
    if (event.key() == row.key) return QString(QChar(row.character));
  const QString text = event.text();
  return !text.isEmpty() && text[0].isPrint() ? text : QString();
}

}  // namespace zephyl
