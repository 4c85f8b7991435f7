#pragma once

#include "SOUNDSETCONTENTITEM.h"

class NSViewS;
class QTimer;

// The paged timeline of the sound screen.
struct SOUNDSETCONTENT {
    NSViewS* frmSoundContent = nullptr; // clips the items to its bounds
    SOUNDSETCONTENTITEM Item;
    // Set exactly while a scroll runs, and so also the timeline's busy flag.
    QTimer* timer = nullptr;
    // The page on view, or while scrolling the page being scrolled to.
    qint32 iPageNumber = 0;
    // The last item's page as seen by the last forward page request.
    qint32 iPageMax = 0;
    qint32 iItemNum = 0;
};
