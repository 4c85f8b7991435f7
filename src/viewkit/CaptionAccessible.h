#pragma once

#include "ViewAccessible.h"

class NSImageViewS;

// What assistive technologies see of a picture view: its caption as static text (titles,
// descriptions, the timeline's numbers), or an unnamed graphic when it has none.
class CaptionAccessible : public ViewAccessible {
public:
    explicit CaptionAccessible(NSImageViewS* view);

    QAccessible::Role role() const override;
    QString text(QAccessible::Text t) const override;

private:
    NSImageViewS* view() const;
};
