// The map of token codes: every run of operations, every single token, every range.

#include "engine/tokens.h"

#include <cstdio>
#include <cstdlib>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "engine/hooks.h"
#include "engine/operation_table.h"
#include "engine/system_variables.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

// Runs token:operation; both count up within a run.
constexpr const char* operation_runs =
    "5-7:275-277, 8-9:6-7, 11-12:287-288, 13:17, 14-15:2-3, 16:9, 17:21, 18:5, 19:274, 20:46, 31-32:23-24, "
    "36-37:27-28, 105-107:278-280, 108:102, 111-112:0-1, 113:18, 114:53, 115:8, 116:10, 119:101, 123:12, "
    "124:270, "
    "125:54, 167-168:272-273, 169-172:259-262, 173:22, 174:271, 175:55, 176-177:268-269, 178-182:263-267, "
    "197:89, "
    "198:88, 199:87, 200:132, 205-207:281-283, 208-215:133-140, 216:11, 305-307:284-286, 350-369:56-75, "
    "381:82, "
    "382:125, 383:127, 384:126, 385:124, 386:123, 387:122, 388:40, 389:39, 390:38, 391:37, 392:36, 393:35, "
    "394:52, "
    "395-397:41-43, 398:231, 399:230, 400:95, 401:94, 402:99, 403-407:103-107, 408-412:145-149, "
    "413-416:151-154, "
    "417:156, 418-420:158-160, 421:97, 422:100, 423:98, 424:157, 425-427:161-163, 428:155, 429:164, "
    "430-431:108-109, "
    "432:172, 433:165, 434:150, 435-443:219-227, 444-445:204-205, 446:96, 447-448:228-229, 449:90, "
    "450-458:194-202, "
    "459-461:206-208, 462:193, 463-464:209-210, 465:203, 466-467:211-212, 468:110, 469-474:213-218, "
    "475-476:113-114, "
    "477-478:111-112, 479-480:117-118, 481:115, 482:119, 483:116, 484-485:120-121, 486-489:128-131, 490:86, "
    "491:78, "
    "492:77, 493:76, 494-496:79-81, 497-499:83-85, 505:15, 506:31, 507:34, 508-509:32-33, 540:16, 605:25, "
    "606-607:29-30, 1007-1008:13-14, 1200:170, 1201:173, 1202:171, 1203:166, 1204:4, 1205-1215:174-184, "
    "1216-1219:186-189, 1220-1222:167-169, 1223:185, 1224-1226:190-192, 1250-1258:243-251, 1261:253, "
    "1262-1264:256-258, "
    "1265:255, 1266:252, 1267:254, 1271:91, 1273-1274:233-234, 1275:232, 1276-1280:235-239, 1281-1282:92-93, "
    "1283-1285:240-242, 1996:144, 1997:143, 1998:142, 1999:141";

std::map<int, int> operations_by_token() {
  std::map<int, int> operations;
  std::istringstream runs(operation_runs);
  for (std::string run; std::getline(runs, run, ',');) {
    int first = 0, last = 0, op = 0;
    if (std::sscanf(run.c_str(), " %d-%d:%d", &first, &last, &op) != 3) {
      std::sscanf(run.c_str(), " %d:%d", &first, &op);
      last = first;
    }
    for (int token = first; token <= last; ++token) operations[token] = op + token - first;
  }
  return operations;
}

TExpression line_of(std::initializer_list<int> tokens) {
  TExpression line;
  for (int token : tokens) line.tokens[line.count++] = static_cast<TToken>(token);
  return line;
}

TEST_F(calculator, every_token_is_the_operation_of_the_runs) {
  const std::map<int, int> operations = operations_by_token();
  ASSERT_EQ(operations.size(), 279u);
  for (int token = 0; token <= 0xFFFF; ++token) {
    const auto found = operations.find(token);
    const int op = found == operations.end() ? OP_NONE : found->second;
    EXPECT_EQ(token_operation(static_cast<TToken>(token)), op) << token;
    EXPECT_EQ(decode_token(static_cast<TToken>(token)).op, op) << token;
  }
}

TEST_F(calculator, operations_go_back_to_their_token) {
  for (const auto& [token, op] : operations_by_token())
    EXPECT_EQ(operation_token(static_cast<TOp_Code>(op)), token);
  for (int op : {19, 20, 26, 44, 45, 47, 48, 49, 50, 51, 289})
    EXPECT_EQ(operation_token(static_cast<TOp_Code>(op)), 0) << op;
  EXPECT_EQ(operation_token(static_cast<TOp_Code>(-1)), 0);
}

TEST_F(calculator, inverse_functions_decode_from_their_keys) {
  EXPECT_EQ(decode_token(111).op, 0);
  EXPECT_EQ(decode_token(112).op, 1);
  EXPECT_EQ(decode_token(113).op, 18);
}

TEST_F(calculator, operation_tokens_are_named_by_their_glyph) {
  EXPECT_STREQ(decode_token(5).name, "SIN");
  EXPECT_EQ(decode_token(5).kind, TOKEN_OPERATION);
  EXPECT_STREQ(decode_token(36).name, "PLUSS");
  EXPECT_STREQ(decode_token(1250).name, "tvmPmt");
}

TEST_F(calculator, digit_tokens_carry_their_character) {
  const std::map<int, const char*> digits = {
      {23, "7"},  {24, "8"},  {25, "9"},  {28, "4"},  {29, "5"},  {30, "6"},  {33, "1"},  {34, "2"},
      {35, "3"},  {38, "0"},  {39, "."},  {40, "e"},  {511, "A"}, {512, "B"}, {513, "C"}, {514, "D"},
      {515, "E"}, {516, "F"}, {517, "d"}, {518, "h"}, {519, "b"}, {619, "o"}};
  for (const auto& [token, name] : digits) {
    EXPECT_EQ(decode_token(static_cast<TToken>(token)).kind, TOKEN_DIGIT) << token;
    EXPECT_STREQ(decode_token(static_cast<TToken>(token)).name, name) << token;
  }
}

struct TSpecialCase {
  int token;
  int special;
  const char* name;
};

TEST_F(calculator, special_tokens_carry_their_code_and_name) {
  const TSpecialCase cases[] = {{3, 3, "start_paren"},
                                {103, 4, "start_brack_1"},
                                {203, 5, "start_brack_2"},
                                {4, 6, "end_paren"},
                                {104, 7, "end_brack_1"},
                                {204, 8, "end_brack_2"},
                                {42, 9, "start_paren_hidden"},
                                {43, 10, "end_paren_hidden"},
                                {41, 11, "Ans"},
                                {117, 12, "pi"},
                                {120, 13, "imaginary"},
                                {217, 14, "e_constant"},
                                {118, 15, "rand_num"},
                                {1299, 16, "matrix_ans"},
                                {1300, 17, "list_ans"},
                                {1301, 18, "string_ans"}};
  for (const TSpecialCase& row : cases) {
    const TDecodedToken& decoded = decode_token(static_cast<TToken>(row.token));
    EXPECT_EQ(decoded.kind, TOKEN_SPECIAL) << row.token;
    EXPECT_EQ(decoded.special, row.special) << row.token;
    EXPECT_STREQ(decoded.name, row.name);
  }
}

void expect_slots(int first, int last, int slot, int special) {
  for (int token = first; token <= last; ++token) {
    const TDecodedToken& decoded = decode_token(static_cast<TToken>(token));
    EXPECT_EQ(decoded.kind, TOKEN_SPECIAL) << token;
    EXPECT_EQ(decoded.special, special) << token;
    EXPECT_EQ(decoded.memory, slot + token - first) << token;
  }
}

TEST_F(calculator, recalls_name_a_memory_slot) {
  expect_slots(800, 899, 0, 1);
  expect_slots(2000, 2109, 0, 1);
  expect_slots(2120, 2128, 120, 1);
  EXPECT_STREQ(decode_token(859).name, "x");
  EXPECT_STREQ(decode_token(2105).name, "{F}");
  EXPECT_STREQ(decode_token(2069).name, "\x97");  // the glyph of theta
}

TEST_F(calculator, stores_name_a_memory_slot) {
  expect_slots(900, 999, 0, 2);
  expect_slots(3000, 3109, 0, 2);
  expect_slots(3120, 3128, 120, 2);
  EXPECT_STREQ(decode_token(3090).name, "[A]");
  EXPECT_STREQ(decode_token(3128).name, "str9");
}

TEST_F(calculator, string_tokens_are_their_character_plus_668) {
  for (int token = 700; token <= 799; ++token) {
    const TDecodedToken& decoded = decode_token(static_cast<TToken>(token));
    EXPECT_EQ(decoded.special, SPECIAL_STRING_CHARACTER) << token;
    EXPECT_EQ(decoded.name[0], static_cast<char>(token - 668)) << token;
  }
}

TEST_F(calculator, quotes_stand_at_the_ends_of_a_string) {
  const TExpression line = line_of({33, 765, 766, 767, 36, 768});
  EXPECT_STREQ(decode_token(line, 1).name, "\"a");
  EXPECT_STREQ(decode_token(line, 2).name, "b");
  EXPECT_STREQ(decode_token(line, 3).name, "c\"");
  EXPECT_STREQ(decode_token(line, 5).name, "\"d\"");
}

TEST_F(calculator, a_call_is_named_by_its_program) {
  const TExpression line = line_of({181, 5102, 5111, 5111, 33});
  EXPECT_STREQ(decode_token(line, 0).name, "foo");
  EXPECT_EQ(decode_token(line, 0).op, OP_FUNC1);
  EXPECT_EQ(decode_token(line, 1).kind, TOKEN_NONE);
}

TEST_F(calculator, a_programs_name_ends_with_the_line) {
  TExpression line = line_of({181, 5102, 5111, 5111});
  line.count = 3;
  EXPECT_STREQ(decode_token(line, 0).name, "fo");
}

TEST_F(calculator, a_place_outside_the_line_decodes_to_nothing) {
  TExpression line = line_of({33, 34});
  line.count = 1;
  EXPECT_EQ(decode_token(line, -1).kind, TOKEN_NONE);
  EXPECT_EQ(decode_token(line, 1).kind, TOKEN_NONE);
}

TEST_F(calculator, statistics_tokens_carry_their_number) {
  const std::map<int, int> numbers = {{1005, 0},  {1006, 1},  {1106, 2},  {1011, 3},  {1012, 4},  {1013, 5},
                                      {1014, 6},  {1015, 7},  {1111, 8},  {1112, 9},  {1113, 10}, {1114, 11},
                                      {1115, 12}, {1116, 13}, {1117, 14}, {1118, 15}, {1119, 16}, {1107, 17},
                                      {1108, 18}, {1109, 19}, {1016, 20}};
  for (int token = 1000; token < 1200; ++token) {
    const auto found = numbers.find(token);
    const TDecodedToken& decoded = decode_token(static_cast<TToken>(token));
    EXPECT_EQ(decoded.stat_index, found == numbers.end() ? NO_STATISTIC : found->second) << token;
    if (found == numbers.end()) continue;
    EXPECT_EQ(decoded.kind, TOKEN_STATISTIC);
    EXPECT_EQ(statistics_token(found->second), token);
  }
}

TEST_F(calculator, statistics_are_listed_by_their_text) {
  const char* const texts[] = {" xySum ",     " xMeanw ",      " yMeanw ", " xMean ", " xSum ",   " xSumSq ",
                               " xSD ",       " xSD-1 ",       " yMean ",  " ySum ",  " ySumSq ", " ySD ",
                               " ySD-1 ",     " xMin ",        " xMax ",   " yMin ",  " yMax ",   " slope ",
                               " intercept ", " correlation ", " count "};
  for (int index = 0; index <= 20; ++index) EXPECT_STREQ(get_stats_string(index), texts[index]);
  EXPECT_STREQ(get_stats_string(21), "");
  EXPECT_EQ(message(), "none");
}

TEST_F(calculator, an_unknown_statistic_shows_a_note) {
  EXPECT_STREQ(get_stats_string(22), "Not Defined ");
  EXPECT_EQ(message(), "get_stats_string | Stats string not defined");
  EXPECT_STREQ(get_stats_string(-1), "Not Defined ");
}

TEST_F(calculator, variable_tokens_carry_their_number) {
  for (int number = 0; number < 100; ++number) {
    EXPECT_EQ(decode_token(static_cast<TToken>(1400 + number)).kind, TOKEN_VARIABLE);
    EXPECT_EQ(decode_token(static_cast<TToken>(1400 + number)).memory, number);
    EXPECT_EQ(decode_token(static_cast<TToken>(1500 + number)).kind, TOKEN_STORE_VARIABLE);
    EXPECT_EQ(decode_token(static_cast<TToken>(1500 + number)).memory, number);
  }
  EXPECT_STREQ(decode_token(1400).name, "angleMode");
  EXPECT_STREQ(decode_token(1524).name, "xMin");
  EXPECT_STREQ(decode_token(1499).name, "");
}

TEST_F(calculator, function_slots_stand_behind_the_variables) {
  for (int slot = 0; slot < 50; ++slot) {
    EXPECT_EQ(decode_token(static_cast<TToken>(1600 + slot)).kind, TOKEN_VARIABLE);
    EXPECT_EQ(decode_token(static_cast<TToken>(1600 + slot)).memory, 100 + slot);
    EXPECT_EQ(decode_token(static_cast<TToken>(1650 + slot)).kind, TOKEN_STORE_VARIABLE);
    EXPECT_EQ(decode_token(static_cast<TToken>(1650 + slot)).memory, 100 + slot);
  }
}

TEST_F(calculator, function_slots_are_named_by_plot_type) {
  const std::map<int, const char*> names = {
      {1600, "f1(x)"}, {1605, "f6(x)"}, {1606, "R1(theta)"}, {1611, "R6(theta)"}, {1612, "X1(t)"},
      {1613, "Y1(t)"}, {1614, "X2(t)"}, {1615, "Y2(t)"},     {1616, "X3(t)"},     {1617, "Y3(t)"},
      {1618, ""},      {1620, ""},      {1621, "f1()"},      {1629, "f9()"},      {1630, ""},
      {1650, "f1(x)"}, {1671, "f1()"}};
  for (const auto& [token, name] : names)
    EXPECT_STREQ(decode_token(static_cast<TToken>(token)).name, name) << token;
}

TEST_F(calculator, a_conversion_token_holds_a_unit_and_a_position) {
  const TDecodedToken& decoded = decode_token(static_cast<TToken>(64 * (12 + 512) + 11));
  EXPECT_EQ(decoded.kind, TOKEN_CONVERSION);
  EXPECT_TRUE(decoded.unit_by_position);
  EXPECT_EQ(decoded.unit_from, 12);
  EXPECT_EQ(decoded.unit_to, 11);
}

TEST_F(calculator, the_lower_conversion_tokens_hold_two_units) {
  const TDecodedToken& decoded = decode_token(static_cast<TToken>(16384 + 12 + 128 * 19));
  EXPECT_EQ(decoded.kind, TOKEN_CONVERSION);
  EXPECT_FALSE(decoded.unit_by_position);
  EXPECT_EQ(decoded.unit_from, 12);
  EXPECT_EQ(decoded.unit_to, 19);
}

TEST_F(calculator, a_conversion_is_named_by_its_units) {
  static const TUnit feet{"ft", 0.3048, 0.0}, meter{"m", 1.0, 0.0};
  hooks.unit_by_code = [](int code) { return code == 12 ? &feet : code == 19 ? &meter : nullptr; };
  hooks.unit_at_position = [](int, int position) { return position == 11 ? 19 : -1; };
  EXPECT_STREQ(decode_token(static_cast<TToken>(64 * (12 + 512) + 11)).name, "(ft\x80m)");
  EXPECT_STREQ(decode_token(static_cast<TToken>(16384 + 12 + 128 * 19)).name, "(ft\x80m)");
  EXPECT_STREQ(decode_token(static_cast<TToken>(64 * (12 + 512) + 5)).name, "(ft\x80?)");
}

TEST_F(calculator, all_conversion_tokens_begin_at_16384) {
  EXPECT_EQ(decode_token(16383).kind, TOKEN_NONE);
  for (int token = 16384; token <= 0xFFFF; ++token)
    EXPECT_EQ(decode_token(static_cast<TToken>(token)).kind, TOKEN_CONVERSION) << token;
}

TEST_F(calculator, other_tokens_have_no_meaning) {
  for (int token : {0,    1,    2,    10,   21,   22,   26,   27,   44,   99,   604,  699,  1302, 1399,
                    1700, 1995, 2110, 2119, 2129, 2999, 3110, 3119, 3129, 4999, 5000, 5999, 6000, 16383})
    EXPECT_EQ(decode_token(static_cast<TToken>(token)).kind, TOKEN_NONE) << token;
}

TEST_F(calculator, every_slot_has_a_recall_and_a_store) {
  for (int slot = 0; slot < 130; ++slot) {
    if ((slot >= 110 && slot < 120) || slot == 129) continue;
    EXPECT_EQ(decode_token(recall_token(slot)).memory, slot);
    EXPECT_EQ(decode_token(recall_token(slot)).special, SPECIAL_RECALL);
    EXPECT_EQ(decode_token(store_token(slot)).memory, slot);
    EXPECT_EQ(decode_token(store_token(slot)).special, SPECIAL_STORE);
  }
}

TEST_F(calculator, brackets_and_functions_with_arguments_open_a_group) {
  const struct {
    int opens, closes;
  } rows[] = {{3, 4}, {42, 4}, {103, 104}, {203, 204}, {5, 4}, {483, 4}, {1997, 4}, {181, 4}};
  for (const auto& row : rows) {
    EXPECT_EQ(closing_token(static_cast<TToken>(row.opens)), row.closes) << row.opens;
    EXPECT_FALSE(closes_group(static_cast<TToken>(row.opens))) << row.opens;
  }
  // A digit, +, clrDraw(), a call without arguments, a character of a string.
  const TToken clear_drawing = operation_token(OP_CLR_DRAW);
  for (const TToken token : {TToken{38}, TToken{36}, clear_drawing, TToken{182}, TToken{708}}) {
    EXPECT_EQ(closing_token(token), 0) << token;
    EXPECT_FALSE(closes_group(token)) << token;
  }
  for (const int token : {4, 43, 104, 204}) {
    EXPECT_TRUE(closes_group(static_cast<TToken>(token))) << token;
    EXPECT_EQ(closing_token(static_cast<TToken>(token)), 0) << token;
  }
}

}  // namespace
}  // namespace zephyl
