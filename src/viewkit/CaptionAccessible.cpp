#include "CaptionAccessible.h"

#include "ButtonAccessible.h"
#include "NSImageViewS.h"

CaptionAccessible::CaptionAccessible(NSImageViewS* view) : ViewAccessible(view) {}

NSImageViewS* CaptionAccessible::view() const {
    return static_cast<NSImageViewS*>(widget());
}

QAccessible::Role CaptionAccessible::role() const {
    return view()->hasCaption() ? QAccessible::StaticText : QAccessible::Graphic;
}

QString CaptionAccessible::text(QAccessible::Text t) const {
    if (t == QAccessible::Name) {
        if (!view()->accessibleName().isEmpty()) return view()->accessibleName();
        return ButtonAccessible::OneLine(view()->captionText());
    }
    return ViewAccessible::text(t);
}
