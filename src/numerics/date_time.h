// Dates as numbers YYYY.MMDD, times as decimal hours or H.MMSS.
#pragma once

namespace zephyl {

struct TCalendarDate {
  int year, month, day;
};

// Takes YYYY.MMDD apart; 2000 is added to a year from 0 to 99.
TCalendarDate split_date(double date);
double join_date(const TCalendarDate& date);
// 28 to 31, 0 for a month that doesn't exist; basis30: always 30.
int days_in_month(int year, int month, bool basis30);
// Years 1 to 9999; ERR_INVALID_DATE for any other, and for a month or day that the calendar (or basis30)
// doesn't have.
bool valid_date(const TCalendarDate& date, bool basis30);

// Days from the first date to the second, negative if it lies before; ERR_INVALID_DATE and 0.
double days_between(double from, double to, bool basis30);
// The date so many days later; days from -1000000000 to 1000000000 without a fraction, else ERR_DOMAIN and 0.
double add_days(double date, double days);
// 1 Monday to 7 Sunday.
double day_of_week(double date);

// H.MMSS of decimal hours, and back.
double to_hms(double hours);
double from_hms(double hms);

// toHMS(, fromHMS(, TIME(), DATE(), deltaDAYS(, deltaDAYS30(, DATE+(, dayOfWeek(, delay(.
void register_date_operations();

}  // namespace zephyl
