#pragma once

#include "FRAMESRECORD.h"

#include <QStringList>

class Frame_Control;

// What must hold of the whole application between two inputs, whatever the inputs were: one
// screen on view, the fixed arrays within their ends and in step with their counters, the
// screens' records as the root view filled them, each screen's state inside its own rules, and
// the keyboard's focus, if anywhere, on a field the user can see.
// Reads only; never changes the application.
class AppInvariants {
public:
    // Takes the screens' records as they stand now as the ones that must never change.
    explicit AppInvariants(const Frame_Control* root);

    // Empty when every rule holds; otherwise one line per broken rule.
    QStringList check() const;

    QStringList checkScreens() const;
    QStringList checkRecords() const;
    QStringList checkMainMenu() const;
    QStringList checkList() const;
    QStringList checkNameField() const;
    QStringList checkPath() const;
    QStringList checkTimeline() const;
    QStringList checkSoundButtons() const;
    QStringList checkLazer() const;
    QStringList checkAlarm() const;
    QStringList checkFocus() const;

private:
    const Frame_Control* m_root;
    FRAMESRECORD m_expected;
};
