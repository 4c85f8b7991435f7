#include "ScreenHost.h"

#include <QWidget>

void ScreenHost::FollowFrom(const QWidget* screen, Route route) {
    if (auto* host = dynamic_cast<ScreenHost*>(screen ? screen->parentWidget() : nullptr))
        host->Follow(route);
}
