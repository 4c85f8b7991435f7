#include "DateFormatter.h"

#include <QTest>
#include <QTimeZone>

#include <ctime>

// The strftime-style formatter behind the alarm's date and time texts; the alarm's own forms are
// tested with the alarm (tst_alarmflow, tst_pickers).
class TestDateFormatter : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        // A zone half an hour off the hour, east of UTC, so that "local" cannot pass by accident.
        qputenv("TZ", "XST-5:30");
        tzset();
    }

    void formats_data() {
        QTest::addColumn<QString>("format");
        QTest::addColumn<QDateTime>("moment");
        QTest::addColumn<QString>("expected");
        const QDateTime local(QDate(2009, 3, 7), QTime(13, 5, 59));
        QTest::newRow("literal text kept") << "at %H:%M on %d." << local << "at 13:05 on 07.";
        QTest::newRow("empty format") << "" << local << "";
        QTest::newRow("invalid moment") << "%Y/%m/%d" << QDateTime() << "";
        QTest::newRow("longer than the first buffer")
            << QString("%Y/%m/%d ").repeated(100) << local << QString("2009/03/07 ").repeated(100);
        // The value's own fields are written, whatever its spec: a picker's date is never moved
        // through the local zone.
        QTest::newRow("offset east of UTC")
            << "%Y/%m/%d %H/%M" << QDateTime(QDate(2011, 12, 30), QTime(0, 5), QTimeZone(14 * 3600))
            << "2011/12/30 00/05";
    }
    void formats() {
        QFETCH(QString, format);
        QFETCH(QDateTime, moment);
        QFETCH(QString, expected);
        QCOMPARE(DateFormatter(format, false).stringFromDate(moment), expected);
    }
};

QTEST_GUILESS_MAIN(TestDateFormatter)
#include "tst_dateformatter.moc"
