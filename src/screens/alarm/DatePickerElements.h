#pragma once

class QDateTimeEdit;

// Which parts of a date a picker lets the user edit, as the flags the alarm screen passes:
// the calendar date, or the time of day to the minute.
namespace DatePickerElements {
inline constexpr int YearMonthDay = 224;
inline constexpr int HourMinute = 12;
} // namespace DatePickerElements

// Shows the elements on the picker; any other value leaves the picker as it is.
void SetDatePickerElements(QDateTimeEdit* picker, int elements);
