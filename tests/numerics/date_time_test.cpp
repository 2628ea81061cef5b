#include "numerics/date_time.h"

#include <gtest/gtest.h>

#include "engine/errors.h"
#include "engine/hooks.h"
#include "support/calculator.h"

namespace zephyl {
namespace {

class date_time : public calculator {
 protected:
  date_time() { platform_.now = {2024, 2, 29, 15, 7, 9, 0, 4}; }  // a Thursday

  void expect(const std::string& text, double expected) { EXPECT_NEAR(value(text), expected, 1e-10) << text; }
  void expect_invalid(const std::string& text) { EXPECT_EQ(error_of(text), "Invalid Date") << text; }
};

// Days from 1 January of the year 1, by the rule of the calendar.
int day_number(int year, int month, int day) {
  int days = 365 * (year - 1) + (year - 1) / 4 - (year - 1) / 100 + (year - 1) / 400;
  for (int m = 1; m < month; ++m) days += days_in_month(year, m, false);
  return days + day;
}

// --- Parts of a date

TEST_F(date_time, a_date_comes_apart) {
  const TCalendarDate date = split_date(2005.0731);
  EXPECT_EQ(date.year, 2005);
  EXPECT_EQ(date.month, 7);
  EXPECT_EQ(date.day, 31);
}

TEST_F(date_time, years_to_99_are_in_this_century) {
  EXPECT_EQ(split_date(5.0101).year, 2005);
  EXPECT_EQ(split_date(0.0101).year, 2000);
  EXPECT_EQ(split_date(99.1231).year, 2099);
  EXPECT_EQ(split_date(100.0101).year, 100);
}

TEST_F(date_time, every_date_of_the_calendar_comes_apart_as_it_was_put_together) {
  for (int year = 100; year <= 9999; ++year)
    for (int month = 1; month <= 12; ++month)
      for (int day = 1; day <= days_in_month(year, month, false); ++day) {
        const TCalendarDate date = split_date(join_date({year, month, day}));
        ASSERT_TRUE(date.year == year && date.month == month && date.day == day)
            << year << " " << month << " " << day;
      }
}

TEST_F(date_time, leap_years) {
  EXPECT_EQ(days_in_month(2004, 2, false), 29);
  EXPECT_EQ(days_in_month(2005, 2, false), 28);
  EXPECT_EQ(days_in_month(1900, 2, false), 28);
  EXPECT_EQ(days_in_month(2000, 2, false), 29);
}

TEST_F(date_time, days_of_the_months) {
  constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  for (int month = 1; month <= 12; ++month) {
    EXPECT_EQ(days_in_month(2005, month, false), days[month - 1]);
    EXPECT_EQ(days_in_month(2005, month, true), 30);
  }
  EXPECT_EQ(days_in_month(2005, 0, false), 0);
  EXPECT_EQ(days_in_month(2005, 13, false), 0);
}

TEST_F(date_time, dates_that_the_calendar_does_not_have) {
  for (const char* date : {"2005.0001", "2005.1301", "2005.0100", "2005.0132", "2005.0229", "2005.0431",
                           "10000.0101", "-5.0101", "2005", "1e300"}) {
    expect_invalid(std::string("dayOfWeek(") + date + ")");
    expect_invalid(std::string("deltaDAYS(") + date + ",2005.0101)");
    expect_invalid(std::string("deltaDAYS(2005.0101,") + date + ")");
    expect_invalid(std::string("DATE+(") + date + ",1)");
  }
}

TEST_F(date_time, the_calendar_ends_with_the_year_9999) {
  expect("deltaDAYS(9999.1231,9999.1230)", -1);
  expect("deltaDAYS(100.0101,9999.1231)", day_number(9999, 12, 31) - day_number(100, 1, 1));
}

// --- Clock

TEST_F(date_time, date_and_time_of_the_clock) {
  expect("DATE()", 2024.0229);
  expect("TIME()", 15.0709);
}

// --- Hours, minutes, seconds

TEST_F(date_time, hours_to_minutes_and_seconds) {
  expect("toHMS(1.5)", 1.3);
  expect("toHMS(2.7575)", 2.4527);
  expect("toHMS(-1.5)", -1.3);
}

TEST_F(date_time, minutes_and_seconds_to_hours) {
  expect("fromHMS(1.3)", 1.5);
  expect("fromHMS(2.4527)", 2.7575);
  expect("fromHMS(-1.3)", -1.5);
}

TEST_F(date_time, a_complex_number_is_converted_part_by_part) {
  EXPECT_NEAR(imaginary("toHMS(1.5+2.5*(i))"), 2.3, 1e-12);
  EXPECT_NEAR(value("toHMS(1.5+2.5*(i))"), 1.3, 1e-12);
  EXPECT_NEAR(imaginary("fromHMS(1.3+1.3*(i))"), 1.5, 1e-12);
}

// 100 times 2.3 is a little below 230, and the second look at it leaves a fraction.
TEST_F(date_time, minutes_can_leave_a_trace_of_seconds) {
  EXPECT_NEAR(value("fromHMS(2.3)") - 2.5, 3.194e-10, 1e-12);
}

TEST_F(date_time, to_hms_comes_last) {
  EXPECT_EQ(error_of("toHMS(1.5)+1"), "toHMS not Last");
  expect("toHMS(1+0.5)", 1.3);
}

// --- Days between

TEST_F(date_time, days_between_two_dates) {
  expect("deltaDAYS(2005.0101,2005.0102)", 1);
  expect("deltaDAYS(2005.0102,2005.0101)", -1);
  expect("deltaDAYS(5.0101,2005.0101)", 0);
  expect("deltaDAYS(2004.0201,2004.0301)", 29);
  expect("deltaDAYS(2003.1231,2005.0101)", 367);
}

TEST_F(date_time, days_between_any_two_dates_are_those_of_the_calendar) {
  int year = 1, month = 1, day = 1;
  for (int i = 0; i < 3000; ++i) {
    const int from_year = year + 99, from_month = month, from_day = day;
    year = (year * 37 + 11) % 9800 + 1;
    month = (month * 5 + i) % 12 + 1;
    day = (day * 7 + i) % days_in_month(year + 99, month, false) + 1;
    const double expected = day_number(year + 99, month, day) - day_number(from_year, from_month, from_day);
    ASSERT_EQ(
        days_between(join_date({from_year, from_month, from_day}), join_date({year + 99, month, day}), false),
        expected)
        << from_year << " " << from_month << " " << from_day << " to " << year + 99 << " " << month << " "
        << day;
  }
}

TEST_F(date_time, days_on_the_basis_of_thirty_a_month) {
  expect("deltaDAYS30(2005.0115,2005.0120)", 5);
  expect("deltaDAYS30(2005.0130,2005.0201)", 1);
  expect("deltaDAYS30(2005.0115,2005.0615)", 150);
  expect("deltaDAYS30(2003.1230,2005.0101)", 361);
  expect("deltaDAYS30(2005.0615,2005.0115)", -150);
}

TEST_F(date_time, that_basis_has_a_thirtieth_of_february_and_no_31st) {
  expect("deltaDAYS30(2005.0230,2005.0301)", 1);
  expect_invalid("deltaDAYS30(2005.0131,2005.0201)");
  expect_invalid("deltaDAYS30(2005.0101,2005.0131)");
}

// --- Days on

TEST_F(date_time, days_added) {
  expect("DATE+(2004.0228,1)", 2004.0229);
  expect("DATE+(2005.0228,1)", 2005.0301);
  expect("DATE+(2005.0115,0)", 2005.0115);
  expect("DATE+(2005.0101,30)", 2005.0131);
  expect("DATE+(2005.0101,31)", 2005.0201);
  expect("DATE+(2005.0401,29)", 2005.043);
  expect("DATE+(2005.1231,1)", 2006.0101);
  expect("DATE+(2005.0101,365)", 2006.0101);
}

TEST_F(date_time, days_taken_away) {
  expect("DATE+(2005.0301,-1)", 2005.0228);
  expect("DATE+(2005.0101,-1)", 2004.1231);
  expect("DATE+(2005.0131,-31)", 2004.1231);
  expect("DATE+(2005.0131,-30)", 2005.0101);
}

TEST_F(date_time, days_added_and_days_between_agree) {
  for (int days = -40000; days <= 40000; days += 37)
    ASSERT_EQ(days_between(2005.0731, add_days(2005.0731, days), false), days) << days;
}

TEST_F(date_time, a_date_of_this_century_comes_back_with_its_full_year) {
  expect("DATE+(5.0101,1)", 2005.0102);
}

TEST_F(date_time, a_day_beyond_the_calendar_is_no_date) {
  expect_invalid("DATE+(9999.1231,1)");
  expect_invalid("DATE+(2005.0101,1000000000)");
  expect_invalid("DATE+(2005.0101,-1000000000)");
  EXPECT_EQ(add_days(9999.1231, 1), 0.0);
}

TEST_F(date_time, days_to_add_must_be_an_integer) {
  EXPECT_EQ(error_of("DATE+(2005.0101,1.5)"), "Domain Error");
  EXPECT_EQ(error_of("DATE+(2005.0101,1000000001)"), "Domain Error");
}

// --- Weekday

TEST_F(date_time, monday_is_1_and_sunday_7) {
  expect("dayOfWeek(2024.0226)", 1);
  expect("dayOfWeek(2024.0229)", 4);
  expect("dayOfWeek(2024.0303)", 7);
  expect("dayOfWeek(2000.0101)", 6);
  expect("dayOfWeek(1969.0720)", 7);
}

TEST_F(date_time, the_weekday_does_not_hang_on_today) {
  for (int offset = 0; offset < 15; ++offset) {
    const TCalendarDate day = split_date(add_days(2024.0226, offset));
    platform_.now.year = day.year;
    platform_.now.month = day.month;
    platform_.now.day = day.day;
    platform_.now.weekday = (offset + 1) % 7;
    EXPECT_EQ(value("dayOfWeek(2005.0731)"), 7.0) << offset;
    EXPECT_EQ(value("dayOfWeek(2030.0101)"), 2.0) << offset;
  }
}

TEST_F(date_time, there_is_no_weekday_of_an_invalid_date) {
  EXPECT_EQ(day_of_week(2005.0231), 0.0);
  EXPECT_EQ(errors.error_code, ERR_INVALID_DATE);
}

// --- Waiting

TEST_F(date_time, delay_waits_by_the_clock) {
  const std::uint32_t before = platform_.ticks;
  EXPECT_EQ(value("delay(1234)"), 0.0);
  EXPECT_GE(platform_.ticks - before, 1234u);
  EXPECT_LE(platform_.ticks - before, 1300u);
}

TEST_F(date_time, delay_survives_a_clock_that_wraps) {
  platform_.ticks = 0xFFFFFF00u;
  EXPECT_EQ(value("delay(1000)"), 0.0);
  EXPECT_LE(platform_.ticks, 1000u);
}

TEST_F(date_time, no_delay_at_all) {
  const std::uint32_t before = platform_.ticks;
  EXPECT_EQ(value("delay(0)"), 0.0);
  EXPECT_LE(platform_.ticks - before, 10u);
}

TEST_F(date_time, a_tap_ends_a_delay) {
  hooks.tap_kind = [](int, int) { return TAP_KEY; };
  platform_.pen_downs.push_back({20, 200});
  EXPECT_EQ(error_of("delay(1000000000)"), "Operation Canceled");
  EXPECT_LE(platform_.ticks, 1100u);
}

TEST_F(date_time, delay_wants_milliseconds_without_a_fraction) {
  for (const char* text : {"delay(-1)", "delay(0.5)", "delay(1000000001)"})
    EXPECT_EQ(error_of(text), "Domain Error") << text;
}

TEST_F(date_time, dates_are_real) {
  EXPECT_EQ(error_of("dayOfWeek((i))"), "Function Argument Type");
  EXPECT_EQ(error_of("DATE+(2005.0101+(i),1)"), "Function Argument Type");
}

}  // namespace
}  // namespace zephyl
