#include "programs/statement_expressions.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <new>

#include "engine/compiler.h"
#include "engine/errors.h"
#include "engine/evaluator.h"
#include "engine/expression.h"
#include "engine/state.h"
#include "engine/tokens.h"
#include "programs/program.h"
#include "programs/program_cache.h"
#include "programs/run_state.h"

namespace zephyl {

namespace {

constexpr int COMPILED_COUNT = 120;
constexpr int HASH_DEPTH_LIMIT = 10;  // function slots that read one another
constexpr int NO_STATEMENT = -1;
constexpr int NONE = -1;

// What a compiled form was made of.
struct TKey {
  char program[PROGRAM_NAME_LENGTH] = "";
  bool built_in = false;
  int statement = NO_STATEMENT;
  int token_count = 0;
  std::uint32_t hash = 0;  // over the tokens, and those of the function slots that they name
  int number_mode = 0;     // digits mean other numbers in BASE_MODE
};

// A compiled form has a place of its own in memory from the start, and is made when it is wanted first.
class TFormPlace {
 public:
  TCompiled& compiled() {
    if (!made_) made_ = new (bytes_) TCompiled;
    return *made_;
  }

 private:
  alignas(TCompiled) unsigned char bytes_[sizeof(TCompiled)];
  TCompiled* made_ = nullptr;
};

struct TKeptForm {
  TKey key;
  bool names_functions = false;  // whose tokens may have changed
  std::uint32_t use_time = 0;
  std::uint32_t serial = 0;  // another number for another expression
  int walks = 0;             // under way: it can't be replaced
};

// Where the form of a statement was found last.
struct THint {
  int form = NONE;
  std::uint32_t serial = 0;
};

TKeptForm forms[COMPILED_COUNT];
TFormPlace places[COMPILED_COUNT];
THint hints[CACHED_PROGRAMS + 1][STATEMENT_LIMIT];  // by loaded_place() + 1
std::uint32_t use_clock = 0;
std::uint32_t last_serial = 0;

int number_mode() { return state.calcMode == BASE_MODE ? 1 + settings.baseType : 0; }

bool names_function(TToken token) {
  return token >= FIRST_FUNCTION_READ && token < FIRST_FUNCTION_READ + 2 * FUNCTION_SLOT_COUNT;
}

bool stores_function(TToken token) {
  return token >= FIRST_FUNCTION_WRITE && token < FIRST_FUNCTION_WRITE + FUNCTION_SLOT_COUNT;
}

bool any_token(const TExpression& expression, bool (*is_wanted)(TToken)) {
  return std::any_of(expression.tokens, expression.tokens + expression.count, is_wanted);
}

// FNV-1a over the tokens, those of named function slots in their place. False, with ERR_MEMORY_LIMIT
// reported, where slots read one another without an end.
bool add_to_hash(std::uint32_t& hash, const TExpression& expression, int depth) {
  if (depth > HASH_DEPTH_LIMIT) {
    report_error(ERR_MEMORY_LIMIT);
    return false;
  }
  for (int i = 0; i < expression.count; ++i) {
    const TToken token = expression.tokens[i];
    hash = (hash ^ token) * 16777619u;
    if (!names_function(token)) continue;
    const int slot = (token - FIRST_FUNCTION_READ) % FUNCTION_SLOT_COUNT;
    if (!add_to_hash(hash, function_slots[slot], depth + 1)) return false;
  }
  hash = (hash ^ static_cast<std::uint32_t>(0xFFFF)) * 16777619u;  // where the slot ends
  return true;
}

bool hash_expression(const TExpression& expression, std::uint32_t& hash) {
  hash = 2166136261u;
  return add_to_hash(hash, expression, 0);
}

bool same_key(const TKey& a, const TKey& b) {
  return a.statement == b.statement && a.hash == b.hash && a.token_count == b.token_count &&
         a.number_mode == b.number_mode && a.built_in == b.built_in && std::strcmp(a.program, b.program) == 0;
}

bool make_key(TKey& key, int index, const TExpression& expression) {
  std::snprintf(key.program, sizeof key.program, "%s", run.part.name);
  key.built_in = run.part.built_in;
  key.statement = index;
  key.token_count = expression.count;
  key.number_mode = number_mode();
  return hash_expression(expression, key.hash);
}

int find_form(const TKey& key) {
  for (int i = 0; i < COMPILED_COUNT; ++i)
    if (same_key(forms[i].key, key)) return i;
  return NONE;
}

// An empty one, else the one whose last use is longest ago. There always is one: walks within one another are
// few.
int form_to_replace() {
  int oldest = NONE;
  for (int i = 0; i < COMPILED_COUNT; ++i) {
    if (forms[i].walks > 0) continue;
    if (forms[i].key.statement == NO_STATEMENT) return i;
    if (oldest == NONE || forms[i].use_time < forms[oldest].use_time) oldest = i;
  }
  return oldest;
}

// Compiles into a place of its own. NONE, with the error reported, if that fails.
int compile_form(const TExpression& expression) {
  const int index = form_to_replace();
  TKeptForm& form = forms[index];
  TCompiled& compiled = places[index].compiled();
  form.key.statement = NO_STATEMENT;
  form.serial = ++last_serial;
  if (!compile_expression(expression, compiled)) return NONE;
  form.names_functions = any_token(expression, names_function);
  return index;
}

// Found by its key, or compiled. A store into a function slot happens when an expression compiles: one that
// does it is never kept.
int find_or_compile(int index, const TExpression& expression) {
  if (any_token(expression, stores_function)) return compile_form(expression);
  TKey key;
  if (!make_key(key, index, expression)) return NONE;
  const int found = find_form(key);
  if (found != NONE) return found;
  const int made = compile_form(expression);
  if (made != NONE) forms[made].key = key;
  return made;
}

THint& hint_of(int index) { return hints[loaded_place() + 1][index]; }

// The form that was the statement's the last time; NONE if it has become another one's.
int hinted_form(int index) {
  const THint& hint = hint_of(index);
  if (hint.form == NONE) return NONE;
  const TKeptForm& form = forms[hint.form];
  const bool its_own = form.serial == hint.serial && form.key.statement == index;
  return its_own && form.key.number_mode == number_mode() ? hint.form : NONE;
}

void walk_form(int index) {
  TKeptForm& form = forms[index];
  form.use_time = ++use_clock;
  ++form.walks;
  run_compiled(places[index].compiled(), false);
  --form.walks;
}

// The form of an expression that may have changed since it was hinted at.
int form_of(int index, const TExpression& expression) {
  const int hinted = hinted_form(index);
  std::uint32_t hash = 0;
  if (hinted == NONE) return find_or_compile(index, expression);
  if (!hash_expression(expression, hash)) return NONE;
  const bool unchanged = forms[hinted].key.hash == hash && forms[hinted].key.token_count == expression.count;
  return unchanged ? hinted : find_or_compile(index, expression);
}

void run_expression(int index, const TExpression& expression) {
  const int form = form_of(index, expression);
  if (form == NONE) return;
  hint_of(index) = {form, forms[form].serial};
  walk_form(form);
}

}  // namespace

void run_statement_expression(int index) {
  // The usual road in a loop: nothing is copied, nothing hashed.
  const int hinted = hinted_form(index);
  if (hinted != NONE && !forms[hinted].names_functions) return walk_form(hinted);
  TExpression expression;
  statement_expression(program.statements[index], expression);
  if (expression.count > 0) run_expression(index, expression);
}

void run_function_expression(int index, int function) {
  constexpr int function_count = 9;
  if (function < 0 || function >= function_count) return report_error(ERR_UNEXPECTED);
  const TExpression& expression = function_slots[FIRST_PROGRAM_FUNCTION + function];
  if (expression.count == 0) return report_error(ERR_UNDEFINED_FUNCTION);
  run_expression(index, expression);
}

void forget_statement_expressions() {
  for (TKeptForm& form : forms) form.key.statement = NO_STATEMENT;
  for (auto& of_a_program : hints) std::fill(of_a_program, of_a_program + STATEMENT_LIMIT, THint{});
}

void forget_statement_hints(int place) {
  std::fill(hints[place + 1], hints[place + 1] + STATEMENT_LIMIT, THint{});
}

}  // namespace zephyl
