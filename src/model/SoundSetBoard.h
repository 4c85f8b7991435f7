#pragma once

#include <QtGlobal>

class SoundTimeline;

// The twelve sound buttons of the sound screen: which sound set page they show, and which of
// them carries the mark of the sound chosen last. Buttons are known by their index on the
// screen, 10 to 21; the mark belongs to the button, not to the sound it names.
class SoundSetBoard {
public:
    static constexpr qint32 kSoundButtonFirst = 10;
    static constexpr qint32 kSoundButtonLast = 21;

    explicit SoundSetBoard(SoundTimeline* timeline) : m_timeline(timeline) {}

    static bool IsSoundButton(qint32 button) {
        return button >= kSoundButtonFirst && button <= kSoundButtonLast;
    }
    // The sound index that `button` stands for on the page shown.
    qint32 SoundOf(qint32 button) const;
    bool MarkOn(qint32 button) const { return button == iCurSoundSet; }

    // A sound button pressed: its sound is appended to the timeline, which then scrolls to the
    // last item's page. Refused while the timeline scrolls. Answers whether the mark moved, from
    // iLastSoundSet to iCurSoundSet.
    bool SoundSet(qint32 button);
    // Answer whether the page changed; pages run from 0 to 2.
    bool PagePre();
    bool PageNext();

    qint32 iCurSoundSet = kSoundButtonFirst;
    qint32 iLastSoundSet = kSoundButtonFirst;
    qint32 iCurSoundSetPage = 0;

private:
    SoundTimeline* m_timeline;
};
