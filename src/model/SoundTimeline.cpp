#include "SoundTimeline.h"

#include "SoundSetText.h"

SoundTimeline::SoundTimeline(QObject* parent) : QObject(parent) {
    // A scroll of one page lasts about a tenth of a second; a coarse timer would make it jerk.
    m_ticker.setTimerType(Qt::PreciseTimer);
    m_ticker.setInterval(10);
}

void SoundTimeline::SetSoundContent(qint32 sound) {
    if (m_itemNum >= kSoundContentItemMax || m_itemNum < 0 || !SoundSetName(sound)) return;
    const qint32 n = m_itemNum;
    m_itemNum += 1;
    emit ItemAppended(n, sound);
}

SoundContentLoc SoundTimeline::ItemLocNow(qint32 n) const {
    SoundContentLoc loc = ::GetSoundContentLoc(n, m_placedPage);
    if (m_scrolled != 0) {
        loc.SizeLoc = SoundContentScrolled(loc.SizeLoc, m_scrolled);
        loc.NumberText = SoundContentScrolled(loc.NumberText, m_scrolled);
        loc.LinkBar = SoundContentScrolled(loc.LinkBar, m_scrolled);
    }
    return loc;
}

std::pair<qint32, qint32> SoundTimeline::ItemsOnView() const {
    // The page whose top row stands nearest the view's top, and the pages around it: an item
    // reaches at most 14 points above its row (its link bar) and 46 below (its picture).
    const qint32 near = m_placedPage - m_scrolled / kSoundContentPagePitch;
    qint32 first = m_itemNum, end = 0;
    for (qint32 page = qMax(0, near - 2); page <= qMin(LastPage(), near + 2); ++page) {
        for (qint32 n = page * kSoundContentPageSize; n < qMin(m_itemNum, (page + 1) * kSoundContentPageSize);
             ++n) {
            const SoundContentLoc loc = ItemLocNow(n);
            const float top = qMin(loc.NumberText.y, loc.LinkBar.y);
            const float bottom = qMax(loc.SizeLoc.y + loc.SizeLoc.height, loc.LinkBar.y + loc.LinkBar.height);
            if (bottom <= 0 || top >= kSoundContentViewHeight) continue;
            first = qMin(first, n);
            end = qMax(end, n + 1);
        }
    }
    return first < end ? std::pair{first, end} : std::pair{0, 0};
}

void SoundTimeline::SoundContentMoveToPage(qint32 page) {
    if (m_timer) return;
    qint32 direction = kScrollToLater;
    if (page < m_pageNumber) {
        if (page < 0) return;
        direction = kScrollToEarlier;
    } else if (page == m_pageNumber) {
        return;
    } else {
        m_pageMax = LastPage();
        if (page > m_pageMax) return;
    }
    // The target item is followed from where it stands now, on the page still on view.
    const qint32 target = page * kSoundContentPageSize;
    m_markY = GetSoundContentLoc(target).SizeLoc.y;
    m_pageNumber = page;
    m_itemTargetNum = target;
    SoundContentTimerOn(direction);
}

void SoundTimeline::SoundContentTimerOn(qint32 direction) {
    // Only one scroll at a time: a new one replaces the old.
    disconnect(m_tick);
    m_tick = connect(&m_ticker, &QTimer::timeout, this,
                     direction == kScrollToEarlier ? &SoundTimeline::SoundContentItemUP
                                                   : &SoundTimeline::SoundContentItemDown);
    m_timer = &m_ticker;
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
    if (m_itemTargetNum < m_itemNum) {
        m_markY += step;
        mark = m_markY;
    }
    const bool arrived = step > 0 ? mark >= 0 : mark <= 0;
    // The arriving tick's views go straight to their places: the snap is all that shows of it.
    m_scrolled += step;
    if (arrived) {
        m_ticker.stop();
        disconnect(m_tick);
        m_timer = nullptr;
        m_placedPage = m_pageNumber;
        m_scrolled = 0;
    }
    emit ItemsScrolled(step);
    if (!arrived) return;
    emit ScrollArrived();
}
