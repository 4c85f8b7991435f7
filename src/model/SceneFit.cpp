#include "SceneFit.h"

#include <algorithm>

qreal SceneFit::Factor(const QSize& available, const QMargins& frame, const QSize& scene) {
    const int width = available.width() - frame.left() - frame.right();
    const int height = available.height() - frame.top() - frame.bottom();
    if (width <= 0 || height <= 0 || scene.isEmpty()) return 1.0;
    return std::min({1.0, qreal(width) / scene.width(), qreal(height) / scene.height()});
}
