#include "numerics/date_time.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "engine/errors.h"
#include "engine/evaluator.h"
#include "engine/operations.h"
#include "engine/values.h"
#include "platform/platform.h"

namespace zephyl {

namespace {

constexpr int INTEGER_LIMIT = 1000000000;

bool is_leap_year(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

int days_in_year(int year, bool basis30) { return basis30 ? 360 : is_leap_year(year) ? 366 : 365; }

// Days from the date to the end of its month, and whole months behind it up to `last_month`.
int days_left(const TCalendarDate& date, int last_month, bool basis30) {
  int days = days_in_month(date.year, date.month, basis30) - date.day;
  for (int month = date.month + 1; month <= last_month; ++month)
    days += days_in_month(date.year, month, basis30);
  return days;
}

// from is not after to.
int days_forward(const TCalendarDate& from, const TCalendarDate& to, bool basis30) {
  if (from.year == to.year && from.month == to.month) return to.day - from.day;
  if (from.year == to.year) return days_left(from, to.month - 1, basis30) + to.day;
  int days = days_left(from, 12, basis30);
  for (int year = from.year + 1; year < to.year; ++year) days += days_in_year(year, basis30);
  for (int month = 1; month < to.month; ++month) days += days_in_month(to.year, month, basis30);
  return days + to.day;
}

bool is_after(const TCalendarDate& a, const TCalendarDate& b) {
  if (a.year != b.year) return a.year > b.year;
  if (a.month != b.month) return a.month > b.month;
  return a.day > b.day;
}

void next_month(TCalendarDate& date) {
  date.month = date.month == 12 ? 1 : date.month + 1;
  if (date.month == 1) ++date.year;
}

void previous_month(TCalendarDate& date) {
  date.month = date.month == 1 ? 12 : date.month - 1;
  if (date.month == 12) --date.year;
}

constexpr int LAST_YEAR = 9999;

// The day counted from the first of the date's month, brought into a month; beyond the last year it is left
// as it is.
void settle(TCalendarDate& date) {
  while (date.year <= LAST_YEAR && date.day > days_in_month(date.year, date.month, false)) {
    date.day -= days_in_month(date.year, date.month, false);
    next_month(date);
  }
  while (date.year >= 1 && date.day < 1) {
    previous_month(date);
    date.day += days_in_month(date.year, date.month, false);
  }
}

TCalendarDate today() {
  const TLocalTime now = platform().local_time();
  return {now.year, now.month, now.day};
}

}  // namespace

TCalendarDate split_date(double date) {
  const double year = int_part(date);
  const double month = int_part((date - year) * 100.0);
  // Slightly above 100, so that a day stored as .0731 doesn't fall to 30.
  const double day = std::trunc(frac_part(date * 100.0) * 100.01);
  const int whole_year = to_int32(year);
  return {whole_year >= 0 && whole_year <= 99 ? whole_year + 2000 : whole_year, to_int32(month),
          to_int32(day)};
}

double join_date(const TCalendarDate& date) { return date.year + date.month * 0.01 + date.day * 0.0001; }

int days_in_month(int year, int month, bool basis30) {
  if (month < 1 || month > 12) return basis30 ? 30 : 0;
  if (basis30) return 30;
  constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && is_leap_year(year) ? 29 : days[month - 1];
}

bool valid_date(const TCalendarDate& date, bool basis30) {
  const bool valid = date.year >= 1 && date.year <= LAST_YEAR && date.month >= 1 && date.month <= 12 &&
                     date.day >= 1 && date.day <= days_in_month(date.year, date.month, basis30);
  if (!valid) report_error(ERR_INVALID_DATE);
  return valid;
}

double days_between(double from, double to, bool basis30) {
  TCalendarDate a = split_date(from), b = split_date(to);
  if (!valid_date(a, basis30) || !valid_date(b, basis30)) return 0.0;
  const bool backward = is_after(a, b);
  if (backward) std::swap(a, b);
  const int days = days_forward(a, b, basis30);
  return backward ? -days : days;
}

double add_days(double date, double days) {
  const int count = checked_integer(days, -INTEGER_LIMIT, INTEGER_LIMIT, ERR_DOMAIN);
  if (errors.error_flag) return 0.0;
  TCalendarDate result = split_date(date);
  if (!valid_date(result, false)) return 0.0;
  result.day += count;
  settle(result);
  return valid_date(result, false) ? join_date(result) : 0.0;
}

double day_of_week(double date) {
  const double days = days_between(join_date(today()), date, false);
  if (errors.error_flag) return 0.0;
  const int weekday_from_monday = (platform().local_time().weekday + 6) % 7;
  const int count = to_int32(days) + weekday_from_monday;
  return count >= 0 ? 1 + count % 7 : 7 - (-count - 1) % 7;
}

double to_hms(double hours) {
  const double minutes = frac_part(hours) * 60.0;
  return int_part(hours) + int_part(minutes) * 0.01 + frac_part(minutes) * 0.006;
}

double from_hms(double hms) {
  const double hours = int_part(hms);
  const double minutes = int_part((hms - hours) * 100.0);
  return hours + minutes * 0.016666666666666666 + frac_part(hms * 100.0) * 0.027777777777777776;
}

namespace {

void time_operation(TScalarCall& call) {
  const TLocalTime now = platform().local_time();
  call.result = {now.hour + now.minute * 0.01 + now.second * 0.0001, 0.0};
}

// Waits by the clock; a tap on a key ends the wait.
void delay_operation(TScalarCall& call) {
  constexpr std::uint32_t slice = 10;
  const int milliseconds = checked_integer(call.args[0].re, 0, INTEGER_LIMIT, ERR_DOMAIN);
  const std::uint32_t start = platform().tick_count();
  for (;;) {
    const std::uint32_t passed = platform().tick_count() - start;
    if (passed >= static_cast<std::uint32_t>(milliseconds) || poll_cancel()) return;
    platform().sleep(std::min(slice, static_cast<std::uint32_t>(milliseconds) - passed));
  }
}

template <bool basis30>
void days_operation(TScalarCall& call) {
  call.result = {days_between(call.args[0].re, call.args[1].re, basis30), 0.0};
}

}  // namespace

void register_date_operations() {
  operations[OP_TO_HMS].scalar = [](TScalarCall& call) {
    call.result = {to_hms(call.args[0].re), to_hms(call.args[0].im)};
  };
  operations[OP_FROM_HMS].scalar = [](TScalarCall& call) {
    call.result = {from_hms(call.args[0].re), from_hms(call.args[0].im)};
  };
  operations[OP_TIME].scalar = time_operation;
  operations[OP_DATE].scalar = [](TScalarCall& call) { call.result = {join_date(today()), 0.0}; };
  operations[OP_DELTA_DAYS].scalar = days_operation<false>;
  operations[OP_DELTA_DAYS_30].scalar = days_operation<true>;
  operations[OP_DATE_PLUS].scalar = [](TScalarCall& call) {
    call.result = {add_days(call.args[0].re, call.args[1].re), 0.0};
  };
  operations[OP_DAY_OF_WEEK].scalar = [](TScalarCall& call) {
    call.result = {day_of_week(call.args[0].re), 0.0};
  };
  operations[OP_DELAY].scalar = delay_operation;
}

}  // namespace zephyl
