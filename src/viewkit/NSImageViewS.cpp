#include "NSImageViewS.h"

#include <QFontMetricsF>
#include <QPainter>

NSImageViewS::NSImageViewS(const NSRect& frame) : NSViewS(frame) {}

Picture NSImageViewS::GetImage(const QString& name, const QString& ImageType) const {
    return Picture::Lookup(name, ImageType);
}

void NSImageViewS::InitImage(const QString& name, const QString& ImageType, int Width, int Height,
                             NSViewS* ParentView) {
    imgDefault = GetImage(name, ImageType);
    imgDefault.setSize(QSizeF(static_cast<float>(Width), static_cast<float>(Height)));
    update();
    if (ParentView) ParentView->addSubview(this);
}

void NSImageViewS::InitText(const QString& text, const QColor& TextColor, int /*NSTextAlignment*/,
                            const NSRect& LocSize, const QString& FontName, int FontSize) {
    if (text.isNull()) return;
    QFont font(FontName);
    font.setStyleHint(QFont::TypeWriter);
    // Pixels, not points: captions were laid out in the window's points, whatever the screen's DPI.
    font.setPixelSize(FontSize > 0 ? FontSize : 1);
    Text = TEXTSTRUCT{text, TextColor, font, LocSize};
    update();
}

void NSImageViewS::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!imgDefault.isNull()) {
        const QSizeF size = imgDefault.size();
        const QRectF target(QPointF((width() - size.width()) / 2.0, (height() - size.height()) / 2.0), size);
        imgDefault.draw(painter, target, devicePixelRatioF());
    }
    drawCaption(painter);
}

void NSImageViewS::drawCaption(QPainter& painter) const {
    if (!hasCaption() || Text.textStorage.isEmpty()) return;
    painter.setFont(Text.font);
    painter.setPen(Text.textColor);
    const QFontMetricsF metrics(Text.font);
    QPointF origin(Text.rectFrame.x + kLinePadding, Text.rectFrame.y + metrics.ascent());
    for (const QString& line : Text.textStorage.split(QLatin1Char('\n'))) {
        painter.drawText(origin, line);
        origin.ry() += metrics.lineSpacing();
    }
}
