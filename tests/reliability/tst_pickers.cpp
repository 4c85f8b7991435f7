#include "AppHarness.h"
#include "Button.h"
#include "Frame_Alarm.h"
#include "Frame_Control.h"
#include "Frame_MainMenu.h"

#include <QDateTimeEdit>
#include <QLineEdit>
#include <QTest>
#include <QTimeZone>

#include <ctime>

namespace {

enum Picker { BirthDate, BirthTime, WakeupTime };

void UseZone(const QByteArray& zone) {
    qputenv("TZ", zone);
    tzset();
}

// One picker's editor opened by clicks from the main menu: the picker, the button showing its
// value and the button that sets it.
std::tuple<QDateTimeEdit*, Button*, Button*> OpenEditor(AppHarness& app, Picker p) {
    Frame_Alarm* a = app.root()->frmAlarm();
    const std::tuple<QDateTimeEdit*, Button*, Button*> parts[] = {
        {a->txtBirthDate, a->BtnBirthDate, a->BtnBirthDateSet},
        {a->txtBirthTime, a->BtnBirthTime, a->BtnBirthTimeSet},
        {a->txtWakeupTime, a->BtnWakeupTime, a->BtnWakeupTimeSet}};
    const bool wakeup = p == WakeupTime;
    if (app.waitForMainMenuReady())
        for (const QWidget* w :
             {app.root()->frmMainMenu()->BtnAlarm, wakeup ? a->BtnWakeupStatus : a->BtnBirthdayStatus,
              wakeup ? a->BtnWakeupOn : a->BtnBirthdayOn, std::get<1>(parts[p])})
            app.click(w);
    return parts[p];
}

} // namespace

// The date and time pickers of the alarm screen at their extremes, in several time zones, at
// either end of the day, driven by the keyboard through the real window: what the picker shows
// is what Set writes on the button, in the form year/month/day or hour/minute.
class TestPickers : public QObject {
    Q_OBJECT
private slots:
    void cleanup() { UseZone("UTC"); }

    void extremesGiveWellFormedTexts_data() {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QTime>("startedAt"); // the time of day the application was started
        QTest::addColumn<int>("picker");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("beyond"); // a key that tries to go past the end
        const std::tuple<Picker, const char*, Qt::Key> typings[] = {
            {BirthDate, "9999/12/31", Qt::Key_Up},   {BirthDate, "1752/09/14", Qt::Key_Down},
            {BirthDate, "2011/12/30", Qt::Key_Left}, // a day some zone skipped
            {BirthTime, "23/59", Qt::Key_Up},        {BirthTime, "00/00", Qt::Key_Down},
            {WakeupTime, "23/59", Qt::Key_PageUp},   {WakeupTime, "00/00", Qt::Key_PageDown}};
        // UTC itself, west and east of it, half an hour off the hour, the far side of the date
        // line, and the zone that skipped 2011-12-30; started early or late in the day.
        for (const char* zone :
             {"UTC", "America/Sao_Paulo", "Asia/Kolkata", "Pacific/Kiritimati", "Pacific/Apia"})
            for (const QTime startedAt : {QTime(0, 10), QTime(23, 50)})
                for (const auto& [picker, typed, beyond] : typings)
                    QTest::addRow("%s, %s, %d: %s", zone, qPrintable(startedAt.toString()), picker, typed)
                        << QByteArray(zone) << startedAt << int(picker) << QString::fromLatin1(typed)
                        << int(beyond);
    }

    void extremesGiveWellFormedTexts() {
        QFETCH(QByteArray, zone);
        QFETCH(int, picker);
        QFETCH(QTime, startedAt);
        QFETCH(QString, typed);
        QFETCH(int, beyond);
        // Without the zone's data the C library quietly runs in UTC, and every zone would pass.
        QVERIFY2(QTimeZone(zone).isValid(), "time zone data missing: install tzdata");
        UseZone(zone);

        AppHarness app;
        const auto [edit, value, set] = OpenEditor(app, Picker(picker));
        QVERIFY(edit->isVisible());
        // The day the application is started on, at that time of day.
        edit->setDateTime(QDateTime(QDate(2026, 11, 24), startedAt, edit->timeSpec()));
        // One click into the first section, then the digits, in at the window as a person types
        // them; a section that is full hands the typing on to the next one.
        auto* text = edit->findChild<QLineEdit*>();
        QVERIFY(text);
        text->setCursorPosition(1);
        const QPoint firstSection = text->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
        text->setCursorPosition(text->text().size());
        app.click(text->mapTo(app.window(), firstSection));
        QVERIFY(edit->hasFocus());
        for (const QChar c : typed)
            if (c.isDigit()) QTest::keyClick(app.handle(), c.toLatin1());
        QCOMPARE(edit->text(), typed);
        // The last section is the one being edited; going past its end changes nothing, since
        // the pickers do not wrap around.
        QTest::keyClick(app.handle(), Qt::Key(beyond));
        QCOMPARE(edit->text(), typed);
        app.click(set);
        QCOMPARE(value->captionText(), typed);
        QVERIFY(!edit->isVisible()); // Set closed the editor

        // Opened again, the picker still holds what was set.
        app.click(value);
        QCOMPARE(edit->text(), typed);
    }
};

QTEST_MAIN(TestPickers)
#include "tst_pickers.moc"
