#pragma once

#include "DateFormatter.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

// The alarm clock's settings and the way through its pages: the choose page with the two
// statuses, one page per alarm, and the confirmation that holds the screen for a while after
// Done. Each action is what the user just did; `changed` follows every one that took effect.
class AlarmFlow : public QObject {
    Q_OBJECT
public:
    enum class Page { Choose, Birthday, Wakeup, Confirmation };
    // The three editors share one place on the window: at most one is open.
    enum class Editor { None, BirthDate, BirthTime, WakeupTime };
    enum class Back { MainMenu, Choose };
    enum class Alarm { Birthday, Wakeup };

    // How long the confirmation page stays after Done.
    static constexpr int kConfirmationMs = 5000;

    // Every picker starts at `picked`, and its text is made from it.
    explicit AlarmFlow(const QDateTime& picked, QObject* parent = nullptr);

    void PressBirthdayStatus();
    void PressWakeupStatus();
    void BirthdayOn();
    void BirthdayOff();
    void WakeupOn();
    void WakeupOff();
    void OpenEditor(Editor editor);
    // Set: the picker's value as it stands, written through a formatter made for this Set.
    void SetBirthDate(const QDateTime& value);
    void SetBirthTime(const QDateTime& value);
    void SetWakeupTime(const QDateTime& value);
    // 0 "Once", 1 "Daily", 2 "Friday To Monday"; anything else is ignored.
    void ChooseFrequency(qint32 type);
    // From an alarm page back to the choose page; leaving the choose page is the screen's.
    void BackToChoose();
    void Done();
    // The confirmation is over (or there was none to show): the choose page again.
    void DoneView();

    Page page() const { return m_page; }
    Editor editor() const { return m_editor; }
    Back backTarget() const { return m_page == Page::Choose ? Back::MainMenu : Back::Choose; }
    // An alarm page shows its values (the birthday's date and time; the wake-up time and the
    // frequencies) only while that alarm is on.
    bool valuesShown() const {
        return (m_page == Page::Birthday && m_enableBirthday) || (m_page == Page::Wakeup && m_enableWakeup);
    }
    // Whose texts the confirmation page shows: those of the last one confirmed.
    Alarm confirmation() const { return m_confirmation; }

    qint32 flagBirthdayWakeup() const { return m_flagBirthdayWakeup; }
    qint32 enableBirthday() const { return m_enableBirthday; }
    qint32 enableWakeup() const { return m_enableWakeup; }
    qint32 typeFrequency() const { return m_typeFrequency; }
    // Whether On or Off of that alarm was ever pressed: until then the pair keeps the look it
    // was made with.
    bool birthdaySwitched() const { return m_birthdaySwitched; }
    bool wakeupSwitched() const { return m_wakeupSwitched; }

    const QDateTime& birthDate() const { return m_birthDate; }
    const QDateTime& birthTime() const { return m_birthTime; }
    const QDateTime& wakeupTime() const { return m_wakeupTime; }
    const QString& formattedBirthDateString() const { return m_formattedBirthDateString; }
    const QString& formattedBirthTimeString() const { return m_formattedBirthTimeString; }
    const QString& formattedWakeupTimeString() const { return m_formattedWakeupTimeString; }

    // The confirmation's one-shot timer.
    const QTimer* timer() const { return &m_timer; }

signals:
    void changed();

private:
    void OpenPage(Page page, qint32 flag);
    void Take(const QDateTime& value, const char* format, std::unique_ptr<DateFormatter>& formatter,
              QDateTime& held, QString& text, Editor own);

    Page m_page = Page::Choose;
    Editor m_editor = Editor::None;
    Alarm m_confirmation = Alarm::Birthday;
    qint32 m_flagBirthdayWakeup = 0; // 0 no alarm page yet, 1 birthday page last, 2 wake-up page last
    qint32 m_enableBirthday = 0;
    qint32 m_enableWakeup = 0;
    qint32 m_typeFrequency = 0;
    bool m_birthdaySwitched = false;
    bool m_wakeupSwitched = false;
    QDateTime m_birthDate;
    QDateTime m_birthTime;
    QDateTime m_wakeupTime;
    std::unique_ptr<DateFormatter> forBirthDateFormatter;
    std::unique_ptr<DateFormatter> forBirthTimeFormatter;
    std::unique_ptr<DateFormatter> forWakeupTimeFormatter;
    QString m_formattedBirthDateString;
    QString m_formattedBirthTimeString;
    QString m_formattedWakeupTimeString;
    QTimer m_timer;
};
