#pragma once

#include "SoundContentLoc.h"

#include <QObject>
#include <QTimer>

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
    SoundContentLoc GetSoundContentLoc(qint32 n) const { return ::GetSoundContentLoc(n, iPageNumber); }
    // The page of the last item (page 0 while there is none).
    qint32 LastPage() const { return (iItemNum - 1) / kSoundContentPageSize; }
    bool Busy() const { return timer != nullptr; }

    // Asks for a scroll to `page`; refused while a scroll runs, and for pages before the first or
    // after the last item's.
    void SoundContentMoveToPage(qint32 page);
    void SoundContentUp() { SoundContentMoveToPage(iPageNumber - 1); }
    void SoundContentDown() { SoundContentMoveToPage(iPageNumber + 1); }
    void SoundContentTimerOn(qint32 direction);

    // Set exactly while a scroll runs, and so also the timeline's busy flag.
    QTimer* timer = nullptr;
    // The page on view, or while scrolling the page being scrolled to.
    qint32 iPageNumber = 0;
    // The last item's page as seen by the last forward page request.
    qint32 iPageMax = 0;
    qint32 iItemNum = 0;
    // The item whose arrival at the top row ends the running scroll: the target page's first.
    qint32 iItemTargetNum = 0;

signals:
    // Item n was appended for sound index `sound`, at GetSoundContentLoc(n).
    void ItemAppended(qint32 n, qint32 sound);
    // One scroll tick: every item moves dy points down (up when negative).
    void ItemsScrolled(qint32 dy);
    // The scroll is over: every item goes to GetSoundContentLoc.
    void ScrollArrived();

public slots:
    // One scroll tick each; the timer calls them.
    void SoundContentItemUP();
    void SoundContentItemDown();

private:
    void SoundContentTick(qint32 step);

    QTimer m_ticker;
    QMetaObject::Connection m_tick;
    // Where the target item's top stands, followed tick by tick.
    qint32 m_markY = 0;
};
