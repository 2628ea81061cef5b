#include "platform/desktop/dialogs/mnemonics.h"

#include <QSet>

#include "platform/desktop/dialogs/dialog_plan.h"
#include "platform/dialog.h"

namespace zephyl {

namespace {

bool wants_letter(const TDialog& dialog, int index) {
  const TControl& control = dialog[index];
  switch (control.kind) {
    case CONTROL_LABEL:
      return leads_to_next(dialog, index) && dialog[index + 1].kind != CONTROL_TEXT &&
             wants_letter(dialog, index + 1);
    case CONTROL_PICTURE:
      return false;
    case CONTROL_TEXT:
      return is_tall(control);
    case CONTROL_BUTTON:
      return control.role == BUTTON_PLAIN;
    default:
      return true;
  }
}

bool can_be_typed(QChar letter) { return letter.unicode() < 128 && letter.isLetterOrNumber(); }

bool begins_word(const QString& text, qsizetype at) { return at == 0 || !text[at - 1].isLetterOrNumber(); }

// The place of the letter, -1 if all of them are taken.
qsizetype free_letter(const QString& text, const QSet<QChar>& taken) {
  for (const bool only_first : {true, false})
    for (qsizetype i = 0; i < text.size(); ++i)
      if (can_be_typed(text[i]) && !taken.contains(text[i].toLower()) &&
          (!only_first || begins_word(text, i)))
        return i;
  return -1;
}

QString marked(const QString& text, qsizetype letter) {
  QString label;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (i == letter || text[i] == '&') label += '&';
    label += text[i];
  }
  return label;
}

}  // namespace

std::vector<QString> labels_with_mnemonics(const TDialog& dialog) {
  std::vector<QString> labels;
  QSet<QChar> taken;
  for (int i = 0; i < dialog.count(); ++i) {
    const QString text = QString::fromStdString(dialog[i].label);
    const qsizetype letter = wants_letter(dialog, i) ? free_letter(text, taken) : -1;
    if (letter >= 0) taken.insert(text[letter].toLower());
    // Words that lead nowhere show as they are.
    const bool plain = dialog[i].kind == CONTROL_LABEL && !leads_to_next(dialog, i);
    labels.push_back(plain ? text : marked(text, letter));
  }
  return labels;
}

}  // namespace zephyl
