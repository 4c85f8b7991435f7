#pragma once

#include <QStringList>

class Frame_Control;

// What only the running application can get wrong, whatever the inputs were: the screen on view
// against the navigator, the fixed arrays of views against their counters, the views against
// their models, timers left running, and the keyboard focus away from what is on view. The rules
// themselves are the model's and are tested there. Reads only; never changes the application.
class AppInvariants {
public:
    explicit AppInvariants(const Frame_Control* root) : m_root(root) {}

    // Empty when every rule holds; otherwise one line per broken rule.
    QStringList check() const;

private:
    QStringList checkScreens() const;
    QStringList checkPath() const;
    QStringList checkTimeline() const;
    QStringList checkAlarm() const;
    QStringList checkSoundButtons() const;
    QStringList checkList() const;
    QStringList checkTimers() const;
    QStringList checkFocus() const;

    const Frame_Control* m_root;
};
