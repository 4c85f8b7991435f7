#pragma once

#include "SoundContentLoc.h"

#include <QObject>
#include <QTimer>

#include <utility>

// The numbers of the sound timeline: how many items it holds, which page is on view, and the
// scroll from page to page. The item views follow it: they are made when an item is appended,
// moved by each scroll tick and put back in place when a scroll arrives.
class SoundTimeline : public QObject {
    Q_OBJECT
public:
    // Scroll directions of SoundContentTimerOn.
    static constexpr qint32 kScrollToEarlier = 8;
    static constexpr qint32 kScrollToLater = 9;

    explicit SoundTimeline(QObject* parent = nullptr);

    // Appends an item for sound index `sound`; a full timeline or an unknown sound adds nothing.
    void SetSoundContent(qint32 sound);
    // Where item n stands while no scroll runs.
    SoundContentLoc GetSoundContentLoc(qint32 n) const { return ::GetSoundContentLoc(n, m_pageNumber); }
    // Where item n stands now: its place for the page the items were last put in place for,
    // moved by the ticks of the running scroll.
    SoundContentLoc ItemLocNow(qint32 n) const;
    // The items that can show in the timeline view now, as [first, end): the rows of at most two
    // pages and the next page's first link bar. Cost follows what is on view, so only these
    // items' views need to move.
    std::pair<qint32, qint32> ItemsOnView() const;
    // The page of the last item (page 0 while there is none).
    qint32 LastPage() const { return (m_itemNum - 1) / kSoundContentPageSize; }
    bool Busy() const { return m_timer != nullptr; }

    // Set exactly while a scroll runs, and so also the timeline's busy flag.
    QTimer* timer() const { return m_timer; }
    // The page on view, or while scrolling the page being scrolled to.
    qint32 iPageNumber() const { return m_pageNumber; }
    // The last item's page as seen by the last forward page request.
    qint32 iPageMax() const { return m_pageMax; }
    qint32 iItemNum() const { return m_itemNum; }
    // The item whose arrival at the top row ends the running scroll: the target page's first.
    qint32 iItemTargetNum() const { return m_itemTargetNum; }

    // Asks for a scroll to `page`; refused while a scroll runs, and for pages before the first or
    // after the last item's.
    void SoundContentMoveToPage(qint32 page);
    void SoundContentUp() { SoundContentMoveToPage(m_pageNumber - 1); }
    void SoundContentDown() { SoundContentMoveToPage(m_pageNumber + 1); }
    void SoundContentTimerOn(qint32 direction);

signals:
    // Fine-grained on purpose: a scroll tick comes every 10 ms, and a view that rebuilt itself
    // from a general "changed" would move every item's views, not just the ones on view.
    // Item n was appended for sound index `sound`, at GetSoundContentLoc(n).
    void ItemAppended(qint32 n, qint32 sound);
    // One scroll tick: every item moves dy points down (up when negative). A scroll's page number
    // and busy flag change as it starts and are seen with its first tick.
    void ItemsScrolled(qint32 dy);
    // The scroll is over: every item goes to GetSoundContentLoc, and the timeline is idle again.
    void ScrollArrived();

public slots:
    // One scroll tick each; the timer calls them.
    void SoundContentItemUP();
    void SoundContentItemDown();

private:
    void SoundContentTick(qint32 step);

    QTimer* m_timer = nullptr;
    qint32 m_pageNumber = 0;
    qint32 m_pageMax = 0;
    qint32 m_itemNum = 0;
    qint32 m_itemTargetNum = 0;
    // The items stand where the layout rule put them for m_placedPage, moved m_scrolled points.
    qint32 m_placedPage = 0;
    qint32 m_scrolled = 0;

    QTimer m_ticker;
    QMetaObject::Connection m_tick;
    // Where the target item's top stands, followed tick by tick.
    qint32 m_markY = 0;
};
