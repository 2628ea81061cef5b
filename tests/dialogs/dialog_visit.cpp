#include "dialogs/dialog_visit.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>

#include "app/start_up.h"
#include "dialogs/dialog_roads.h"
#include "engine/calculator.h"
#include "engine/errors.h"
#include "engine/expression.h"
#include "engine/state.h"
#include "engine/text_entry.h"
#include "persistence/constants.h"
#include "persistence/save_items.h"
#include "persistence/settings.h"
#include "persistence/state_records.h"
#include "platform/dialog.h"
#include "platform/script/script.h"
#include "plot/drawing.h"
#include "plot/plot_slots.h"
#include "plot/plot_variables.h"
#include "programs/program.h"
#include "programs/programs.h"
#include "programs/statement_text.h"
#include "support/program_listing.h"
#include "support/temporary_folder.h"
#include "support/whole_state.h"
#include "tools/tvm_state.h"

namespace zephyl {

namespace {

const struct {
  const char* name;
  std::vector<std::string> lines;
} programs[] = {{"Area", {"func(a, b)", "a*b"}},
                {"Plain", {"in r", "r^(2)->A", "out A"}},
                {"Shapes",
                 {"Menu Clear", "Menu \"Area of\"", "Menu A, \"Circle\"", "Menu B, \"Square\"", "Menu Display", "stop",
                  "label A", "text \"round\"", "stop", "label B", "text \"even\""}},
                {"Told", {"Program Description \"What it does~~and how\"", "out A"}}};

constexpr const char* contents[] = {
    "2.5->A",       "1+2i->z",          "-3->R7",
    "7->alpha",     "{1,2,3}->{B}",     "initMatrix(2,3,5)->[C]",
    "\"abc\"->str2", "2->statsVar",      "entStats(1)",
    "entStats(3)",  "entStats(2)",      "entStats(5)",
    "entStats(4)",  "entStats(4)",      "sin(x)->f1(x)",
    "x^(2)->f3(x)", "A+1->f1()",        "Line(1,1,5,5)",
    "12->tvmN",     "6->(tvmI%YR)",     "1000->tvmPV",
    "-90->tvmPMT"};

void write_programs() {
  std::filesystem::create_directory("programs");
  for (const auto& program : programs)
    std::ofstream(std::string("programs/") + program.name + ".prgm") << program_file_from_listing(program.name, program.lines);
}

void fill_calculator() {
  for (const char* text : contents) {
    char reason[200] = "";
    enter_text(text, reason, sizeof reason);
    evaluate_expression(false);
  }
  clear_calculator(true);
  save_settings();  // whose file is there from the beginning then
}

// --- What the calculator keeps, a line each

void add_records(std::ostream& text) {
  const TSaveItems kept = save_items;
  std::memset(save_items.checked, 1, sizeof save_items.checked);
  std::string records;
  append_state_records(records);
  save_items = kept;
  text << records;
}

void add_range(std::ostream& text, const TPlotRange& range) {
  text << range.min << ' ' << range.max << ' ' << range.step << '\n';
}

void add_plot(std::ostream& text) {
  const TPlotVariables& plot = plot_variables;
  text << "plot " << plot.plotType << plot.plotType3D << plot.plotCursor << plot.connectDots << plot.displayGrid
       << plot.enablePlots << ' ' << plot.xMin << ' ' << plot.xMax << ' ' << plot.yMin << ' ' << plot.yMax << ' '
       << plot.zScale << '\n';
  add_range(text, plot.t);
  add_range(text, plot.v);
  for (const int slot : trace_functions.slot) text << "trace " << slot << '\n';
  const TSurface& picture = drawing_bitmap();
  const std::string pixels(reinterpret_cast<const char*>(picture.pixels()),
                           sizeof(TColour) * static_cast<std::size_t>(picture.width() * picture.height()));
  text << "drawing " << std::hash<std::string>()(pixels) << '\n';
}

void add_settings(std::ostream& text) {
  text << "settings " << settings.angleMode << ' ' << settings.baseBits << ' ' << settings.baseType << ' '
       << settings.complexFormat << ' ' << settings.decimalDigits << ' ' << settings.decimalMark << ' '
       << settings.keyClick << ' ' << settings.numberFormat << ' ' << settings.statsRegress << ' '
       << settings.statsVar << ' ' << settings.display_color << ' ' << settings.brightness << ' ' << settings.skin
       << '\n';
  text << "mode " << state.calcMode << ", error " << errors.error_flag << '\n';
  for (const double value : tvm_state.values) text << "tvm " << value << '\n';
  text << "payments " << tvm_state.begin << '\n';
}

void add_entry(std::ostream& text) {
  text << "cursor " << entry_line.cursor << '\n';
  for (int i = 0; i < entry_line.expression.count; ++i) text << "token " << entry_line.expression.tokens[i] << '\n';
}

void add_program(std::ostream& text) {
  text << "program " << program.name << ' ' << program.built_in << " at " << program.cursor << '\n';
  text << "description " << program.description << '\n';
  for (int i = 0; i < program.statement_count; ++i) text << statement_text(i, NAMES_IN_WORDS) << '\n';
}

void add_constants(std::ostream& text) {
  for (int i = 0; i < constant_count(); ++i)
    text << "constant " << constant_name(i) << ' ' << constant_value(i) << ' ' << constant_unit(i) << '\n';
}

void add_files(std::ostream& text) {
  std::set<std::filesystem::path> paths;
  for (const auto& entry : std::filesystem::recursive_directory_iterator("."))
    if (entry.is_regular_file()) paths.insert(entry.path());
  for (const std::filesystem::path& path : paths) {
    std::ifstream file(path, std::ios::binary);
    text << "file " << path.string() << '\n' << file.rdbuf() << '\n';
  }
}

std::string whole_state() {
  std::ostringstream text;
  text.precision(17);
  add_records(text);
  add_plot(text);
  add_settings(text);
  add_entry(text);
  add_program(text);
  add_constants(text);
  add_files(text);
  return text.str();
}

// --- The visit

class TVisitor : public TScriptPlatform {
 public:
  TVisitor(int id, const TDialogUser& user, const TDialogUser& next_user, TVisit& visit)
      : id_(id), user_(user), next_user_(next_user), visit_(visit) {}

  // The script goes on where the dialog is left.
  void before_dialog(TDialog& dialog) override {
    if (visit_.opened) {
      if (next_user_) next_user_(dialog);
      return cancel_dialog(dialog);
    }
    if (dialog.id() != id_) return;
    visit_.opened = true;
    visit_.before = whole_state();
    messages.clear();
    user_(dialog);
    visit_.left = whole_state();
    cancel_dialog(dialog);
  }
  bool choose_file(const TFileQuestion&, std::string& path) override {
    path = "kept.state";
    return true;
  }

 private:
  int id_;
  const TDialogUser& user_;
  const TDialogUser& next_user_;
  TVisit& visit_;
};

// The commands of a road. The first one starts the calculator, which is filled before the next.
class TRoadChannel : public TScriptChannel {
 public:
  TRoadChannel(const TDialogRoad& road, TVisit& visit) : road_(road), visit_(visit) {}

  bool read_line(std::string& line) override {
    if (next_ == 1) fill_calculator();
    if (next_ <= road_.way.size()) {
      line = next_ == 0 ? "mode" : road_.way[next_ - 1];
      ++next_;
      return true;
    }
    if (visit_.behind.empty()) visit_.behind = whole_state();
    return false;
  }
  void write_line(const std::string&) override {}
  void flush() override {}

 private:
  const TDialogRoad& road_;
  TVisit& visit_;
  std::size_t next_ = 0;
};

std::set<std::string> lines_of(const std::string& text) {
  std::set<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.insert(line);
  return lines;
}

}  // namespace

TVisit visit(const TDialogRoad& road, const TDialogUser& user, const TDialogUser& next_user) {
  TVisit visit;
  const TWorkingFolder folder;
  write_programs();
  TVisitor platform(road.id, user, next_user, visit);
  set_platform(&platform);
  register_families();
  TRoadChannel channel(road, visit);
  TScript(channel, platform).run();
  visit.messages.assign(platform.messages.begin(), platform.messages.end());
  if (state.program_running) run_key_pressed();
  visit.fault = calculator_fault();
  set_platform(nullptr);
  return visit;
}

std::string difference(const std::string& before, const std::string& behind) {
  const std::set<std::string> old_lines = lines_of(before);
  std::string text;
  for (const std::string& line : lines_of(behind))
    if (!old_lines.count(line)) text += line + '\n';
  return text;
}

}  // namespace zephyl
