#include "DatePickerElements.h"

#include <QDateTimeEdit>

void SetDatePickerElements(QDateTimeEdit* picker, int elements) {
    if (!picker) return;
    // Fixed, locale-free orders in the form the buttons write them: the same picker reads the
    // same on every machine, and a four-digit year never turns into a two-digit one.
    switch (elements) {
    case DatePickerElements::YearMonthDay:
        picker->setDisplayFormat(QStringLiteral("yyyy/MM/dd"));
        break;
    case DatePickerElements::HourMinute:
        picker->setDisplayFormat(QStringLiteral("HH/mm"));
        break;
    default:
        break;
    }
}
