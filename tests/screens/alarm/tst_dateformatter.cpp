#include "DateFormatter.h"
#include "DatePickerElements.h"

#include <QDateEdit>
#include <QTest>
#include <QTimeEdit>
#include <QTimeZone>

#include <ctime>

// The strftime-style formatter of the alarm screen, and the picker elements flags, without the
// screen.
class TestDateFormatter : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        // A zone half an hour off the hour, east of UTC, so that "local" cannot pass by accident.
        qputenv("TZ", "XST-5:30");
        tzset();
    }

    void formatsLocalTime_data() {
        QTest::addColumn<QString>("format");
        QTest::addColumn<QDateTime>("moment");
        QTest::addColumn<QString>("expected");

        const auto local = [](int y, int mo, int d, int h, int mi, int s = 0) {
            return QDateTime(QDate(y, mo, d), QTime(h, mi, s));
        };
        QTest::newRow("date, zero padded") << "%Y/%m/%d" << local(2009, 3, 7, 12, 0) << "2009/03/07";
        QTest::newRow("date, two-digit fields") << "%Y/%m/%d" << local(1999, 12, 31, 23, 59) << "1999/12/31";
        QTest::newRow("date, leap day") << "%Y/%m/%d" << local(2024, 2, 29, 6, 30) << "2024/02/29";
        QTest::newRow("date ignores the time") << "%Y/%m/%d" << local(2030, 1, 1, 0, 0) << "2030/01/01";
        QTest::newRow("time with a slash") << "%H/%M" << local(2009, 3, 7, 7, 5) << "07/05";
        QTest::newRow("time, midnight") << "%H/%M" << local(2009, 3, 7, 0, 0) << "00/00";
        QTest::newRow("time, last minute") << "%H/%M" << local(2009, 3, 7, 23, 59, 59) << "23/59";
        QTest::newRow("time, afternoon is 24-hour") << "%H/%M" << local(2009, 3, 7, 13, 45) << "13/45";
        QTest::newRow("seconds are not rounded") << "%H/%M" << local(2009, 3, 7, 7, 5, 59) << "07/05";
        QTest::newRow("literal text kept")
            << "at %H:%M on %d." << local(2009, 3, 7, 7, 5) << "at 07:05 on 07.";
        QTest::newRow("percent sign") << "100%%" << local(2009, 3, 7, 7, 5) << "100%";
        QTest::newRow("no conversions") << "alarm" << local(2009, 3, 7, 7, 5) << "alarm";
        QTest::newRow("empty format") << "" << local(2009, 3, 7, 7, 5) << "";
        QTest::newRow("invalid moment") << "%Y/%m/%d" << QDateTime() << "";
        QTest::newRow("longer than the first buffer")
            << QString("%Y/%m/%d ").repeated(100) << local(2009, 3, 7, 7, 5)
            << QString("2009/03/07 ").repeated(100);
    }
    void formatsLocalTime() {
        QFETCH(QString, format);
        QFETCH(QDateTime, moment);
        QFETCH(QString, expected);
        const DateFormatter formatter(format, false);
        QCOMPARE(formatter.stringFromDate(moment), expected);
    }

    // The value's own fields are written, whatever its spec: a picker's date is never moved
    // through the local zone.
    void writesTheFieldsOfTheValuesOwnSpec_data() {
        QTest::addColumn<QDateTime>("value");
        QTest::addColumn<QString>("date");
        QTest::addColumn<QString>("time");
        QTest::newRow("UTC, late in the day")
            << QDateTime(QDate(2009, 12, 31), QTime(20, 0), QTimeZone::utc()) << "2009/12/31"
            << "20/00";
        QTest::newRow("UTC, first pickable day")
            << QDateTime(QDate(1752, 9, 14), QTime(0, 0), QTimeZone::utc()) << "1752/09/14"
            << "00/00";
        QTest::newRow("offset east of UTC")
            << QDateTime(QDate(2011, 12, 30), QTime(0, 5), QTimeZone(14 * 3600)) << "2011/12/30"
            << "00/05";
    }
    void writesTheFieldsOfTheValuesOwnSpec() {
        QFETCH(QDateTime, value);
        QFETCH(QString, date);
        QFETCH(QString, time);
        QCOMPARE(DateFormatter("%Y/%m/%d", false).stringFromDate(value), date);
        QCOMPARE(DateFormatter("%H/%M", false).stringFromDate(value), time);
    }

    void pickerElementsChooseWhatTheUserEdits_data() {
        QTest::addColumn<int>("elements");
        QTest::addColumn<bool>("timePicker");
        QTest::addColumn<QString>("expectedFormat");
        QTest::newRow("year, month, day") << DatePickerElements::YearMonthDay << false << "yyyy/MM/dd";
        QTest::newRow("hour, minute") << DatePickerElements::HourMinute << true << "HH/mm";
        QTest::newRow("unknown flags change nothing") << 7 << true << "";
        QTest::newRow("zero changes nothing") << 0 << false << "";
    }
    void pickerElementsChooseWhatTheUserEdits() {
        QFETCH(int, elements);
        QFETCH(bool, timePicker);
        QFETCH(QString, expectedFormat);
        std::unique_ptr<QDateTimeEdit> picker;
        if (timePicker)
            picker = std::make_unique<QTimeEdit>();
        else
            picker = std::make_unique<QDateEdit>();
        const QString before = picker->displayFormat();
        SetDatePickerElements(picker.get(), elements);
        QCOMPARE(picker->displayFormat(), expectedFormat.isEmpty() ? before : expectedFormat);
        SetDatePickerElements(nullptr, elements); // no picker: nothing to do, no crash
    }
};

QTEST_MAIN(TestDateFormatter)
#include "tst_dateformatter.moc"
