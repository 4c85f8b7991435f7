#include "ScreenTour.h"

#include "AppHarness.h"
#include "Button.h"
#include "Frame_Alarm.h"
#include "Frame_Control.h"
#include "Frame_Face.h"
#include "Frame_Lazer.h"
#include "Frame_MainMenu.h"
#include "Frame_MoveMent.h"
#include "Frame_Scenario.h"
#include "Frame_Sound.h"

#include <QDateTimeEdit>
#include <QLineEdit>
#include <QPixmap>
#include <QTest>
#include <QWidget>

namespace {
// Bare background on every screen: no button lies there.
const QPoint kPark(400, 20);
} // namespace

ScreenTour::ScreenTour(AppHarness& app, const QDir& folder) : m_app(app), m_folder(folder) {}

bool ScreenTour::fail(const QString& why) {
    m_error = why;
    return false;
}

bool ScreenTour::stop(const QString& name) {
    m_app.moveTo(kPark);
    QTest::qWait(50);
    const QString file =
        QStringLiteral("%1-%2.png").arg(m_written.size() - m_rings + 1, 2, 10, QLatin1Char('0')).arg(name);
    return save(file);
}

bool ScreenTour::save(const QString& file) {
    // Quality 0: the smallest PNG; they go into the repository.
    if (!m_app.window()->grab().save(m_folder.filePath(file), "PNG", 0))
        return fail(QStringLiteral("could not write ") + file);
    m_written << file;
    return true;
}

bool ScreenTour::run() {
    m_app.moveTo(kPark);
    return mainMenu() && scenario() && editors() && alarm();
}

bool ScreenTour::mainMenu() {
    Frame_MainMenu* menu = m_app.root()->frmMainMenu();
    // Half way up, at the same tick on every run.
    RobotSlide& slide = menu->robotSlide;
    slide.timer->stop();
    while (slide.y > 515) slide.RobotAction();
    // Started again only after the picture: the wait for the window's paint would otherwise let
    // as many ticks pass as the machine happens to allow.
    const bool shot = stop(QStringLiteral("main-menu-robot-arriving"));
    slide.timer->start();
    if (!shot) return false;
    if (!m_app.waitForMainMenuReady(10000)) return fail(QStringLiteral("the menu never got ready"));
    if (!stop(QStringLiteral("main-menu"))) return false;
    // Pointed at: lit picture, white caption. The grab is taken with the pointer still there.
    m_app.moveTo(menu->BtnProgram);
    if (!save(QStringLiteral("%1-main-menu-pointing.png")
                  .arg(m_written.size() - m_rings + 1, 2, 10, QLatin1Char('0'))))
        return false;
    return ring(QStringLiteral("menu"), menu->BtnProgram);
}

bool ScreenTour::ring(const QString& name, QWidget* control) {
    // By the keyboard only; the next click takes the ring away again.
    m_app.moveTo(kPark);
    for (int tab = 0; tab < 30 && !(tab > 0 && control->hasFocus()); ++tab)
        QTest::keyClick(m_app.handle(), Qt::Key_Tab);
    if (!control->hasFocus()) return fail(QStringLiteral("Tab never reached ") + name);
    QTest::qWait(50);
    ++m_rings; // outside the numbered stops
    return save(QStringLiteral("focus-ring-%1.png").arg(name));
}

bool ScreenTour::scenario() {
    Frame_Scenario* scenario = m_app.root()->frmScenario();
    m_app.click(m_app.root()->frmMainMenu()->BtnProgram);
    if (m_app.shownScreen() != scenario) return fail(QStringLiteral("no scenario screen"));
    if (!stop(QStringLiteral("scenario"))) return false;

    m_app.click(scenario->BtnModify);
    m_app.click(scenario->BtnScenarioName[2]);
    if (!stop(QStringLiteral("scenario-list"))) return false;

    m_app.click(scenario->BtnCreate);
    m_app.click(scenario->txtScenarioName);
    QTest::keyClicks(scenario->txtScenarioName, QStringLiteral("Robo dance"));
    if (!stop(QStringLiteral("scenario-create"))) return false;

    m_app.click(scenario->BtnNewCreate);
    if (m_app.shownScreen() != m_app.root()->frmMovement())
        return fail(QStringLiteral("Create did not open the movement screen"));
    return stop(QStringLiteral("movement"));
}

bool ScreenTour::editors() {
    Frame_Control* root = m_app.root();
    Frame_Sound* sound = root->frmSound();
    const auto settled = [sound] {
        return QTest::qWaitFor([sound] { return !sound->Timeline.Busy(); }, 10000);
    };

    m_app.click(root->frmMovement()->BtnSound);
    if (m_app.shownScreen() != sound) return fail(QStringLiteral("no sound screen"));
    if (!stop(QStringLiteral("sound"))) return false;

    // A full first page of the timeline, then the second sound set page and a thirteenth sound,
    // which scrolls the timeline to its second page.
    for (qint32 i = Frame_Sound::kBtnSoundFirst; i <= Frame_Sound::kBtnSoundLast; ++i) {
        m_app.click(sound->BtnButton[i]);
        if (!settled()) return fail(QStringLiteral("the timeline never stopped scrolling"));
    }
    if (!stop(QStringLiteral("sound-timeline-page-1"))) return false;
    m_app.click(sound->BtnButton[Frame_Sound::kBtnPageNext]);
    m_app.click(sound->BtnButton[Frame_Sound::kBtnSoundFirst + 4]);
    if (!settled()) return fail(QStringLiteral("the timeline never stopped scrolling"));
    if (!stop(QStringLiteral("sound-timeline-page-2"))) return false;
    m_app.click(sound->BtnButton[Frame_Sound::kBtnPageNext]);
    if (!stop(QStringLiteral("sound-set-page-3"))) return false;

    Frame_Lazer* lazer = root->frmLazer();
    m_app.click(sound->BtnButton[Frame_Sound::kBtnLazer]);
    if (m_app.shownScreen() != lazer) return fail(QStringLiteral("no laser screen"));
    const std::pair<Button*, const char*> configurations[] = {
        {lazer->BtnLazer1, "laser-configuration-1"},
        {lazer->BtnLazer2, "laser-configuration-2"},
        {lazer->BtnLazer3, "laser-configuration-3"},
    };
    for (const auto& [button, name] : configurations) {
        m_app.click(button);
        if (!stop(QString::fromLatin1(name))) return false;
    }

    // No control leads to the face screen; it is shown here directly, for the record.
    lazer->setHidden(true);
    root->frmFace()->setHidden(false);
    if (!stop(QStringLiteral("face"))) return false;
    root->frmFace()->setHidden(true);
    lazer->setHidden(false);
    lazer->ButtonTrackingOn();

    // Back, Back, Back: sound, movement, main menu.
    m_app.click(lazer->BtnBack);
    m_app.click(sound->BtnButton[Frame_Sound::kBtnBack]);
    m_app.click(root->frmMovement()->BtnBack);
    if (m_app.shownScreen() != root->frmMainMenu())
        return fail(QStringLiteral("the Back chain did not end on the menu"));
    return true;
}

void ScreenTour::setValue(Button* open, QDateTimeEdit* picker, Button* set) {
    m_app.click(open);
    picker->setDateTime(QDateTime(QDate(2026, 11, 24), QTime(8, 30), picker->timeSpec()));
    m_app.click(set);
}

bool ScreenTour::alarm() {
    Frame_Control* root = m_app.root();
    Frame_Alarm* alarm = root->frmAlarm();
    m_app.click(root->frmMainMenu()->BtnAlarm);
    if (m_app.shownScreen() != alarm) return fail(QStringLiteral("no alarm screen"));
    if (!stop(QStringLiteral("alarm-choose"))) return false;

    m_app.click(alarm->BtnBirthdayStatus);
    if (!stop(QStringLiteral("alarm-birthday-off"))) return false;
    m_app.click(alarm->BtnBirthdayOn);
    // The pickers start at the moment the app was made; the tour shows one fixed moment, set as
    // a user would, so that its pictures are the same on every run.
    setValue(alarm->BtnBirthDate, alarm->txtBirthDate, alarm->BtnBirthDateSet);
    setValue(alarm->BtnBirthTime, alarm->txtBirthTime, alarm->BtnBirthTimeSet);
    if (!stop(QStringLiteral("alarm-birthday-on"))) return false;
    m_app.click(alarm->BtnBirthDate);
    if (!stop(QStringLiteral("alarm-birthday-date-editor"))) return false;
    m_app.click(alarm->BtnBirthDateSet);
    m_app.click(alarm->BtnBirthTime);
    if (!stop(QStringLiteral("alarm-birthday-time-editor"))) return false;
    m_app.click(alarm->BtnBirthTimeSet);
    m_app.click(alarm->BtnBack);

    m_app.click(alarm->BtnWakeupStatus);
    if (!stop(QStringLiteral("alarm-wakeup-off"))) return false;
    m_app.click(alarm->BtnWakeupOn);
    setValue(alarm->BtnWakeupTime, alarm->txtWakeupTime, alarm->BtnWakeupTimeSet);
    m_app.click(alarm->BtnWakeupFreq3);
    if (!stop(QStringLiteral("alarm-wakeup-on"))) return false;
    // The ring round a chosen (orange) button.
    if (!ring(QStringLiteral("alarm"), alarm->BtnWakeupOn)) return false;
    m_app.click(alarm->BtnWakeupTime);
    if (!stop(QStringLiteral("alarm-wakeup-time-editor"))) return false;
    m_app.click(alarm->BtnWakeupTimeSet);

    m_app.click(alarm->BtnDone);
    if (!alarm->frmDoneView->isVisible()) return fail(QStringLiteral("no confirmation page"));
    if (!stop(QStringLiteral("alarm-confirmation"))) return false;
    if (!QTest::qWaitFor([alarm] { return alarm->frmChooseView->isVisible(); },
                         AlarmFlow::kConfirmationMs + 10000))
        return fail(QStringLiteral("the confirmation page never went"));
    return stop(QStringLiteral("alarm-choose-after"));
}
