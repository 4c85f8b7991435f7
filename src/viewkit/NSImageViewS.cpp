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

const NSImageViewS::LaidOutCaption& NSImageViewS::laidOutCaption() const {
    // Keyed on the text and font themselves, not on InitText: Text is a public field.
    if (m_laidOut.text.isNull() || m_laidOut.text != Text.textStorage || m_laidOut.font != Text.font) {
        const QFontMetricsF metrics(Text.font);
        m_laidOut.text = Text.textStorage;
        m_laidOut.font = Text.font;
        m_laidOut.ascent = metrics.ascent();
        m_laidOut.lineSpacing = metrics.lineSpacing();
        m_laidOut.lines.clear();
        for (const QString& line : Text.textStorage.split(QLatin1Char('\n'))) {
            QStaticText laidOut(line);
            laidOut.setTextFormat(Qt::PlainText);
            laidOut.prepare(QTransform(), Text.font);
            m_laidOut.lines.append(laidOut);
        }
    }
    return m_laidOut;
}

void NSImageViewS::drawCaption(QPainter& painter) const {
    if (!hasCaption() || Text.textStorage.isEmpty()) return;
    const LaidOutCaption& caption = laidOutCaption();
    painter.setFont(Text.font);
    painter.setPen(Text.textColor);
    // Each line's baseline lies one ascent below the caption origin, the next a line spacing
    // further down; a laid-out line is placed by its top, one ascent above its baseline.
    QPointF baseline(Text.rectFrame.x + kLinePadding, Text.rectFrame.y + caption.ascent);
    for (const QStaticText& line : caption.lines) {
        painter.drawStaticText(QPointF(baseline.x(), baseline.y() - caption.ascent), line);
        baseline.ry() += caption.lineSpacing;
    }
}
