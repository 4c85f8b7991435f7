#pragma once

#include <QObject>

class SoundTimeline;

// The twelve sound buttons of the sound screen: which sound set page they show, and which of
// them carries the mark of the sound chosen last. Buttons are known by their index on the
// screen, 10 to 21; the mark belongs to the button, not to the sound it names. `changed` follows
// every press that moved the mark or turned the page.
class SoundSetBoard : public QObject {
    Q_OBJECT
public:
    static constexpr qint32 kSoundButtonFirst = 10;
    static constexpr qint32 kSoundButtonLast = 21;

    explicit SoundSetBoard(SoundTimeline* timeline) : m_timeline(timeline) {}

    static bool IsSoundButton(qint32 button) {
        return button >= kSoundButtonFirst && button <= kSoundButtonLast;
    }
    // The sound index that `button` stands for on the page shown.
    qint32 SoundOf(qint32 button) const;
    bool MarkOn(qint32 button) const { return button == m_iCurSoundSet; }

    // A sound button pressed: its sound is appended to the timeline, which then scrolls to the
    // last item's page, and the mark moves to the button. Refused while the timeline scrolls.
    void SoundSet(qint32 button);
    // Pages run from 0 to 2.
    void PagePre();
    void PageNext();

    qint32 iCurSoundSet() const { return m_iCurSoundSet; }
    qint32 iCurSoundSetPage() const { return m_iCurSoundSetPage; }

signals:
    void changed();

private:
    SoundTimeline* m_timeline;
    qint32 m_iCurSoundSet = kSoundButtonFirst;
    qint32 m_iCurSoundSetPage = 0;
};
