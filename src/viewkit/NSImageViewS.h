#pragma once

#include "NSViewS.h"
#include "Picture.h"
#include "TEXTSTRUCT.h"

#include <QList>
#include <QStaticText>

// A view that shows one picture from the resources, centred and drawn at the size it was given,
// and one caption over it. A view without a picture name is a caption-only view.
class NSImageViewS : public NSViewS {
    Q_OBJECT
public:
    explicit NSImageViewS(const NSRect& frame);

    Picture GetImage(const QString& name, const QString& ImageType) const;
    void InitImage(const QString& name, const QString& ImageType, int Width, int Height, NSViewS* ParentView);

    // A null text keeps the caption as it was. The alignment is accepted and, as every caller
    // passes left, has no effect; the rectangle's origin is where the first line starts.
    void InitText(const QString& text, const QColor& TextColor, int NSTextAlignment, const NSRect& LocSize,
                  const QString& FontName, int FontSize);

    bool hasCaption() const { return !Text.textStorage.isNull(); }
    const QString& captionText() const { return Text.textStorage; }
    QColor captionColor() const { return Text.textColor; }

    // Where the caption's first line starts inside the caption rectangle: the text system's
    // line fragment padding.
    static constexpr qreal kLinePadding = 5.0;

    TEXTSTRUCT Text;
    Picture imgDefault;

protected:
    void paintEvent(QPaintEvent* event) override;
    void drawCaption(QPainter& painter) const;

private:
    // The caption's lines laid out once, for as long as its text and font stay the same: a
    // scrolling timeline repaints dozens of captions every 10 ms, and laying out a string costs
    // more than drawing it. Drawn, the lines are the same pixels as drawText's.
    struct LaidOutCaption {
        QString text;
        QFont font;
        QList<QStaticText> lines;
        qreal ascent = 0;
        qreal lineSpacing = 0;
    };
    const LaidOutCaption& laidOutCaption() const;

    mutable LaidOutCaption m_laidOut;
};
