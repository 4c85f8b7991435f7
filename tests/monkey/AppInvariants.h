#pragma once

#include <QStringList>

class Frame_Control;

// What only the running application can get wrong, whatever the inputs were: the screen on view
// against the navigator, the fixed arrays of views against their counters, the views against
// their models, timers left running, and the keyboard focus away from what is on view. The rules
// themselves are the model's and are tested there. Reads only; empty when every rule holds,
// otherwise one line per broken rule.
QStringList AppInvariants(const Frame_Control* root);
