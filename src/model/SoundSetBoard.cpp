#include "SoundSetBoard.h"

#include "SoundSetText.h"
#include "SoundTimeline.h"

qint32 SoundSetBoard::SoundOf(qint32 button) const {
    return button - kSoundButtonFirst + kSoundSetPageSize * m_iCurSoundSetPage;
}

void SoundSetBoard::SoundSet(qint32 button) {
    if (m_timeline->Busy() || !IsSoundButton(button)) return;
    const qint32 iLastSoundSet = m_iCurSoundSet;
    m_iCurSoundSet = button;
    // A full timeline takes nothing, yet the mark still moves and the last page still comes
    // into view.
    m_timeline->SetSoundContent(SoundOf(button));
    m_timeline->SoundContentMoveToPage(m_timeline->LastPage());
    if (iLastSoundSet != m_iCurSoundSet) emit changed();
}

void SoundSetBoard::PagePre() {
    if (m_iCurSoundSetPage <= 0) return;
    m_iCurSoundSetPage -= 1;
    emit changed();
}

void SoundSetBoard::PageNext() {
    if (m_iCurSoundSetPage > kSoundSetPageCount - 2) return;
    m_iCurSoundSetPage += 1;
    emit changed();
}
