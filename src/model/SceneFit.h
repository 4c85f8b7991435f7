#pragma once

#include <QMargins>
#include <QSize>

// How far the window's fixed scene must shrink to be seen whole on a screen: the window with
// its frame must lie inside the screen's available area.
namespace SceneFit {

// The uniform factor for a scene in an area of `available` size, less the frame the window
// manager puts around the window: 1 when the scene fits as it is, never more. With no room to
// speak of (an empty area, a frame as large as the area, an empty scene) it is 1: nothing
// smaller would be seen either, and the scene keeps its looks.
qreal Factor(const QSize& available, const QMargins& frame, const QSize& scene);

} // namespace SceneFit
