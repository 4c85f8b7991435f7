#include "AlarmFlow.h"

namespace {
// The texts of the date and time buttons: fields apart by a slash, the time too.
const char* const kAlarmDateFormat = "%Y/%m/%d";
const char* const kAlarmTimeFormat = "%H/%M";
} // namespace

AlarmFlow::AlarmFlow(const QDateTime& picked, QObject* parent)
    : QObject(parent), m_birthDate(picked), m_birthTime(picked), m_wakeupTime(picked) {
    forBirthDateFormatter = std::make_unique<DateFormatter>(QString::fromLatin1(kAlarmDateFormat), false);
    forBirthTimeFormatter = std::make_unique<DateFormatter>(QString::fromLatin1(kAlarmTimeFormat), false);
    forWakeupTimeFormatter = std::make_unique<DateFormatter>(QString::fromLatin1(kAlarmTimeFormat), false);
    m_formattedBirthDateString = forBirthDateFormatter->stringFromDate(picked);
    m_formattedBirthTimeString = forBirthTimeFormatter->stringFromDate(picked);
    m_formattedWakeupTimeString = forWakeupTimeFormatter->stringFromDate(picked);

    m_timer.setSingleShot(true);
    m_timer.setInterval(kConfirmationMs);
    connect(&m_timer, &QTimer::timeout, this, &AlarmFlow::DoneView);
}

void AlarmFlow::OpenPage(Page page, qint32 flag) {
    // The status buttons are on view on the choose page only.
    if (m_page != Page::Choose) return;
    m_page = page;
    m_flagBirthdayWakeup = flag;
    emit changed();
}

void AlarmFlow::PressBirthdayStatus() {
    OpenPage(Page::Birthday, 1);
}

void AlarmFlow::PressWakeupStatus() {
    OpenPage(Page::Wakeup, 2);
}

void AlarmFlow::BirthdayOn() {
    m_enableBirthday = 1;
    m_birthdaySwitched = true;
    emit changed();
}

void AlarmFlow::BirthdayOff() {
    // The date and time stay as they were set; only their buttons and editors go.
    m_enableBirthday = 0;
    m_birthdaySwitched = true;
    if (m_editor == Editor::BirthDate || m_editor == Editor::BirthTime) m_editor = Editor::None;
    emit changed();
}

void AlarmFlow::WakeupOn() {
    m_enableWakeup = 1;
    m_wakeupSwitched = true;
    emit changed();
}

void AlarmFlow::WakeupOff() {
    m_enableWakeup = 0;
    m_wakeupSwitched = true;
    if (m_editor == Editor::WakeupTime) m_editor = Editor::None;
    emit changed();
}

void AlarmFlow::OpenEditor(Editor editor) {
    m_editor = editor;
    emit changed();
}

void AlarmFlow::Take(const QDateTime& value, const char* format, std::unique_ptr<DateFormatter>& formatter,
                     QDateTime& held, QString& text, Editor own) {
    // Nothing is checked or rounded: what the picker holds is what the button writes.
    held = value;
    formatter = std::make_unique<DateFormatter>(QString::fromLatin1(format), false);
    text = formatter->stringFromDate(value);
    if (m_editor == own) m_editor = Editor::None;
    emit changed();
}

void AlarmFlow::SetBirthDate(const QDateTime& value) {
    Take(value, kAlarmDateFormat, forBirthDateFormatter, m_birthDate, m_formattedBirthDateString,
         Editor::BirthDate);
}

void AlarmFlow::SetBirthTime(const QDateTime& value) {
    Take(value, kAlarmTimeFormat, forBirthTimeFormatter, m_birthTime, m_formattedBirthTimeString,
         Editor::BirthTime);
}

void AlarmFlow::SetWakeupTime(const QDateTime& value) {
    Take(value, kAlarmTimeFormat, forWakeupTimeFormatter, m_wakeupTime, m_formattedWakeupTimeString,
         Editor::WakeupTime);
}

void AlarmFlow::ChooseFrequency(qint32 type) {
    if (type < 0 || type > 2) return;
    m_typeFrequency = type;
    emit changed();
}

void AlarmFlow::BackToChoose() {
    // Every setting stays; only the open editor closes.
    if (m_page != Page::Birthday && m_page != Page::Wakeup) return;
    m_page = Page::Choose;
    m_editor = Editor::None;
    emit changed();
}

void AlarmFlow::Done() {
    if (m_page != Page::Birthday && m_page != Page::Wakeup) return;
    m_editor = Editor::None;
    // Done confirms the alarm of the page it was pressed on, and only if that alarm is on;
    // whether a date, time or frequency was ever set does not matter.
    const bool wakeup = m_flagBirthdayWakeup == 2;
    if (!(wakeup ? m_enableWakeup : m_enableBirthday)) {
        DoneView();
        return;
    }
    m_page = Page::Confirmation;
    m_confirmation = wakeup ? Alarm::Wakeup : Alarm::Birthday;
    m_timer.start();
    emit changed();
}

void AlarmFlow::DoneView() {
    // Called early, the confirmation's timer must not end a later one.
    m_timer.stop();
    m_page = Page::Choose;
    m_editor = Editor::None;
    emit changed();
}
