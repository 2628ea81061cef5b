#include "platform/desktop/clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "engine/format.h"
#include "engine/state.h"
#include "engine/text_entry.h"

namespace zephyl {

namespace {

struct TSign {
  char16_t written;
  const char* typed;
};

constexpr TSign SIGNS[] = {{u'\u00d7', "*"}, {u'\u00b7', "*"}, {u'\u22c5', "*"},   {u'\u00f7', "/"},
                           {u'\u2212', "-"}, {u'\u2013', "-"}, {u'\u00a0', " "},   {u'\t', " "},
                           {u'\n', " "},     {u'\r', " "},     {u'\u03c0', "(pi)"}};

}  // namespace

void copy_result() {
  char plain[RESULT_TEXT_SIZE * 3] = "";
  plain_text(state.result_text, plain, sizeof plain);
  if (plain[0]) QGuiApplication::clipboard()->setText(QString::fromLatin1(plain));
}

QString typed_text(const QString& text) {
  QString typed = text;
  for (const TSign& sign : SIGNS) typed.replace(QChar(sign.written), QLatin1String(sign.typed));
  return typed.trimmed();
}

void paste_clipboard() {
  const QString text = typed_text(QGuiApplication::clipboard()->text());
  if (!text.isEmpty()) paste_text(text.toUtf8().constData());
}

}  // namespace zephyl
