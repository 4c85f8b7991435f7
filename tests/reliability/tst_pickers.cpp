#include "AppHarness.h"
#include "Button.h"
#include "Frame_Alarm.h"
#include "Frame_Control.h"
#include "Frame_MainMenu.h"

#include <QDateEdit>
#include <QRegularExpression>
#include <QTest>
#include <QTimeEdit>

#include <ctime>

namespace {

enum Picker { BirthDate, BirthTime, WakeupTime };

// Time zones the user may live in: UTC itself, west and east of it, half an hour off the hour,
// and the far side of the date line.
const char* const kZones[] = {"UTC", "America/Sao_Paulo", "Asia/Kolkata", "Pacific/Kiritimati"};

void UseZone(const QByteArray& zone) {
    qputenv("TZ", zone);
    tzset();
}

QDateTimeEdit* PickerOf(Frame_Alarm* a, Picker p) {
    switch (p) {
    case BirthDate:
        return a->txtBirthDate;
    case BirthTime:
        return a->txtBirthTime;
    case WakeupTime:
        return a->txtWakeupTime;
    }
    return nullptr;
}

Button* ValueButtonOf(Frame_Alarm* a, Picker p) {
    return p == BirthDate ? a->BtnBirthDate : p == BirthTime ? a->BtnBirthTime : a->BtnWakeupTime;
}

Button* SetButtonOf(Frame_Alarm* a, Picker p) {
    return p == BirthDate ? a->BtnBirthDateSet : p == BirthTime ? a->BtnBirthTimeSet : a->BtnWakeupTimeSet;
}

// The alarm screen with the editor of one picker open, reached by clicks from the main menu.
Frame_Alarm* OpenEditor(AppHarness& app, Picker p) {
    if (!app.waitForMainMenuReady()) return nullptr;
    app.click(app.root()->frmMainMenu->BtnAlarm);
    Frame_Alarm* a = app.root()->frmAlarm;
    if (p == WakeupTime) {
        app.click(a->BtnWakeupStatus);
        app.click(a->BtnWakeupOn);
    } else {
        app.click(a->BtnBirthdayStatus);
        app.click(a->BtnBirthdayOn);
    }
    app.click(ValueButtonOf(a, p));
    return PickerOf(a, p)->isVisible() ? a : nullptr;
}

// Keys go in at the window, to the picker the user clicked into: Home, then the first section
// selected, then the digits; a section that is full hands the typing on to the next one.
void TypeIn(AppHarness& app, const QDateTimeEdit* edit, const QString& shown) {
    QTest::keyClick(app.handle(), Qt::Key_Home);
    const int firstSection = static_cast<int>(edit->sectionText(edit->sectionAt(0)).size());
    for (int i = 0; i < firstSection; ++i) QTest::keyClick(app.handle(), Qt::Key_Right, Qt::ShiftModifier);
    for (const QChar c : shown)
        if (c.isDigit()) QTest::keyClick(app.handle(), c.toLatin1());
}

// What the picker shows, written the way the button writes it.
QString Shown(const QDateTimeEdit* picker) {
    QString text = picker->text();
    return text.replace(QLatin1Char('-'), QLatin1Char('/')).replace(QLatin1Char(':'), QLatin1Char('/'));
}

} // namespace

// The date and time pickers of the alarm screen at their extremes, in several time zones,
// driven by the keyboard through the real window: what the picker shows after Set is what the
// button says, always in the form year/month/day or hour/minute.
class TestPickers : public QObject {
    Q_OBJECT
private slots:
    void cleanup() { UseZone("UTC"); }

    void extremesGiveWellFormedTexts_data() {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<int>("picker");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("beyond"); // a key that tries to go past the end
        QTest::addColumn<QString>("expected");
        for (const char* zone : kZones) {
            const auto row = [zone](const char* what) {
                return &QTest::newRow(
                    qPrintable(QStringLiteral("%1, %2").arg(QLatin1String(zone), QLatin1String(what))));
            };
            *row("last date") << QByteArray(zone) << int(BirthDate) << "9999-12-31" << int(Qt::Key_Up)
                              << "9999/12/31";
            *row("first date") << QByteArray(zone) << int(BirthDate) << "1752-09-14" << int(Qt::Key_Down)
                               << "";
            *row("birthday 23:59") << QByteArray(zone) << int(BirthTime) << "23:59" << int(Qt::Key_Up)
                                   << "23/59";
            *row("birthday 00:00") << QByteArray(zone) << int(BirthTime) << "00:00" << int(Qt::Key_Down)
                                   << "00/00";
            *row("wake-up 23:59") << QByteArray(zone) << int(WakeupTime) << "23:59" << int(Qt::Key_PageUp)
                                  << "23/59";
            *row("wake-up 00:00") << QByteArray(zone) << int(WakeupTime) << "00:00" << int(Qt::Key_PageDown)
                                  << "00/00";
        }
    }

    void extremesGiveWellFormedTexts() {
        QFETCH(QByteArray, zone);
        QFETCH(int, picker);
        QFETCH(QString, typed);
        QFETCH(int, beyond);
        QFETCH(QString, expected);
        UseZone(zone);

        AppHarness app;
        Frame_Alarm* a = OpenEditor(app, Picker(picker));
        QVERIFY(a);
        QDateTimeEdit* edit = PickerOf(a, Picker(picker));
        app.click(edit);
        QVERIFY(edit->hasFocus());
        TypeIn(app, edit, typed);
        QCOMPARE(edit->text(), typed);
        // The last section is the one being edited; going past its end changes nothing, since
        // the pickers do not wrap around.
        QTest::keyClick(app.handle(), Qt::Key(beyond));
        app.click(SetButtonOf(a, Picker(picker)));

        const QString text = ValueButtonOf(a, Picker(picker))->captionText();
        static const QRegularExpression form(QStringLiteral("^(\\d{4}/\\d{2}/\\d{2}|\\d{2}/\\d{2})$"));
        QVERIFY2(form.match(text).hasMatch(), qPrintable(text));
        QCOMPARE(text, Shown(edit));
        if (!expected.isEmpty()) QCOMPARE(text, expected);
        QVERIFY(edit->isHidden() || !edit->isVisible()); // Set closed the editor
    }

    // Where daylight saving starts at midnight, the first hour of that day does not exist. A
    // picker whose day is that one (the application was started on it) and the user's 00:00
    // still give the button a time it can show.
    void midnightTheClockSkips_data() {
        QTest::addColumn<int>("picker");
        QTest::addColumn<QString>("typed");
        QTest::newRow("birthday 00:00") << int(BirthTime) << "00:00";
        QTest::newRow("birthday 00:30") << int(BirthTime) << "00:30";
        QTest::newRow("wake-up 00:59") << int(WakeupTime) << "00:59";
    }

    void midnightTheClockSkips() {
        QFETCH(int, picker);
        QFETCH(QString, typed);
        UseZone("America/Santiago"); // 2024-09-08 00:00 became 01:00
        AppHarness app;
        Frame_Alarm* a = OpenEditor(app, Picker(picker));
        QVERIFY(a);
        QDateTimeEdit* edit = PickerOf(a, Picker(picker));
        edit->setDateTime(QDateTime(QDate(2024, 9, 8), QTime(12, 0)));
        QVERIFY(edit->dateTime().isValid());
        const QString before = ValueButtonOf(a, Picker(picker))->captionText();

        app.click(edit);
        TypeIn(app, edit, typed);
        app.click(SetButtonOf(a, Picker(picker)));

        const QString text = ValueButtonOf(a, Picker(picker))->captionText();
        static const QRegularExpression form(QStringLiteral("^\\d{2}/\\d{2}$"));
        QVERIFY2(form.match(text).hasMatch(),
                 qPrintable(QStringLiteral("\"%1\" after \"%2\"").arg(text, before)));
        // The picker refuses a time that does not exist rather than hold no time at all.
        QVERIFY(edit->dateTime().isValid());
        QCOMPARE(text, Shown(edit));
    }
};

QTEST_MAIN(TestPickers)
#include "tst_pickers.moc"
