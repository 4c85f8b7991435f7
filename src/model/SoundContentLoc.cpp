#include "SoundContentLoc.h"

#include <cmath>

namespace {

struct SlotPlace {
    qint32 x;
    qint32 rowY;
};

// Rows 0 and 2 run left to right, rows 1 and 3 right to left.
constexpr SlotPlace kSlots[kSoundContentPageSize] = {
    {12, 9},    {133, 9},   {253, 9},   //
    {253, 63},  {133, 63},  {12, 63},   //
    {12, 117},  {133, 117}, {253, 117}, //
    {253, 171}, {133, 171}, {12, 171},
};

enum class Link { Left, Right, Above };

// Which neighbour a slot's bar joins: the one before it in the snake. Slot 0 joins the previous
// page's last item, above it; the very first item has none and gets a lead-in bar on its left.
constexpr Link kSlotLinks[kSoundContentPageSize] = {
    Link::Above, Link::Left,  Link::Left,  //
    Link::Above, Link::Right, Link::Right, //
    Link::Above, Link::Left,  Link::Left,  //
    Link::Above, Link::Right, Link::Right,
};

} // namespace

SoundContentLoc GetSoundContentLoc(qint32 n, qint32 pageShown) {
    SoundContentLoc loc;
    if (n < 0) return loc;
    const qint32 page = n / kSoundContentPageSize;
    const qint32 slot = n % kSoundContentPageSize;
    const qint32 x = kSlots[slot].x;
    // 64-bit on the way: a far page shown must not overflow the product.
    const qint64 y = static_cast<qint64>(page - static_cast<qint64>(pageShown)) * kSoundContentPagePitch +
                     kSlots[slot].rowY;
    const auto yi = static_cast<qint32>(qBound<qint64>(-(1LL << 24), y, 1LL << 24));

    // Wider than the item's picture and the number's three digits need: the longest sound name
    // and the numbers past 99 run a few points beyond, and a view cuts what runs past its edge.
    SetNSRect(&loc.SizeLoc, x, yi, 117, 46);
    SetNSRect(&loc.NumberText, x - 11, yi - 5, 28, 14);

    Link link = kSlotLinks[slot];
    if (n == 0) link = Link::Left;
    switch (link) {
    case Link::Left:
        SetNSRect(&loc.LinkBar, x - 12, yi + 18, 14, 3);
        loc.LinkBarType = kLinkBarHorizontal;
        break;
    case Link::Right:
        SetNSRect(&loc.LinkBar, x + 110, yi + 18, 14, 3);
        loc.LinkBarType = kLinkBarHorizontal;
        break;
    case Link::Above:
        SetNSRect(&loc.LinkBar, x + 54, yi - 14, 3, 14);
        loc.LinkBarType = kLinkBarVertical;
        break;
    }
    return loc;
}

NSRect SoundContentScrolled(const NSRect& frame, qint32 dy) {
    return NSRect{std::trunc(frame.x), std::trunc(frame.y + static_cast<float>(dy)), std::trunc(frame.width),
                  std::trunc(frame.height)};
}
