#include "SoundSetBoard.h"

#include "SoundSetText.h"
#include "SoundTimeline.h"

qint32 SoundSetBoard::SoundOf(qint32 button) const {
    return button - kSoundButtonFirst + kSoundSetPageSize * iCurSoundSetPage;
}

bool SoundSetBoard::SoundSet(qint32 button) {
    if (m_timeline->Busy() || !IsSoundButton(button)) return false;
    iLastSoundSet = iCurSoundSet;
    iCurSoundSet = button;
    // A full timeline takes nothing, yet the mark still moves and the last page still comes
    // into view.
    m_timeline->SetSoundContent(SoundOf(button));
    m_timeline->SoundContentMoveToPage(m_timeline->LastPage());
    return iLastSoundSet != iCurSoundSet;
}

bool SoundSetBoard::PagePre() {
    if (iCurSoundSetPage <= 0) return false;
    iCurSoundSetPage -= 1;
    return true;
}

bool SoundSetBoard::PageNext() {
    if (iCurSoundSetPage > kSoundSetPageCount - 2) return false;
    iCurSoundSetPage += 1;
    return true;
}
