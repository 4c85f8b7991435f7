#include "SoundTimeline.h"

#include "SoundSetText.h"

SoundTimeline::SoundTimeline(QObject* parent) : QObject(parent) {
    // A scroll of one page lasts about a tenth of a second; a coarse timer would make it jerk.
    m_ticker.setTimerType(Qt::PreciseTimer);
    m_ticker.setInterval(10);
}

void SoundTimeline::SetSoundContent(qint32 sound) {
    if (iItemNum >= kSoundContentItemMax || iItemNum < 0 || !SoundSetName(sound)) return;
    const qint32 n = iItemNum;
    iItemNum += 1;
    emit ItemAppended(n, sound);
}

void SoundTimeline::SoundContentMoveToPage(qint32 page) {
    if (timer) return;
    qint32 direction = kScrollToLater;
    if (page < iPageNumber) {
        if (page < 0) return;
        direction = kScrollToEarlier;
    } else if (page == iPageNumber) {
        return;
    } else {
        iPageMax = LastPage();
        if (page > iPageMax) return;
    }
    // The target item is followed from where it stands now, on the page still on view.
    const qint32 target = page * kSoundContentPageSize;
    m_markY = GetSoundContentLoc(target).SizeLoc.y;
    iPageNumber = page;
    iItemTargetNum = target;
    SoundContentTimerOn(direction);
}

void SoundTimeline::SoundContentTimerOn(qint32 direction) {
    // Only one scroll at a time: a new one replaces the old.
    disconnect(m_tick);
    m_tick = connect(&m_ticker, &QTimer::timeout, this,
                     direction == kScrollToEarlier ? &SoundTimeline::SoundContentItemUP
                                                   : &SoundTimeline::SoundContentItemDown);
    timer = &m_ticker;
    m_ticker.start();
}

void SoundTimeline::SoundContentItemUP() {
    SoundContentTick(kSoundContentScrollStep);
}

void SoundTimeline::SoundContentItemDown() {
    SoundContentTick(-kSoundContentScrollStep);
}

void SoundTimeline::SoundContentTick(qint32 step) {
    // Without a target item there is nothing to wait for: the first tick arrives.
    qint32 mark = 0;
    if (iItemTargetNum < iItemNum) {
        m_markY += step;
        mark = m_markY;
    }
    emit ItemsScrolled(step);
    const bool arrived = step > 0 ? mark >= 0 : mark <= 0;
    if (!arrived) return;
    m_ticker.stop();
    disconnect(m_tick);
    timer = nullptr;
    emit ScrollArrived();
}
