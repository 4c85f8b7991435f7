#include "Button.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

void BtnAction(void*, Button*) {}
void BtnEntered(void*, Button*) {}
void BtnExited(void*, Button*) {}

Button::Button(const NSRect& frame) : NSImageViewS(frame) {
    setFocusPolicy(Qt::TabFocus);
}

void Button::SetEnable(qint8 flag) {
    bEnable = flag;
    setFocusPolicy(flag ? Qt::TabFocus : Qt::NoFocus);
}

void Button::InitImage(const QString& up, const QString& move, const QString& down, const QString& ImageType,
                       NSViewS* ParentView) {
    BtnImageUp = GetImage(up, ImageType);
    BtnImageMove = GetImage(move, ImageType);
    BtnImageDown = GetImage(down, ImageType);
    setLook(Look::Up);
    if (ParentView) ParentView->addSubview(this);
}

void Button::InitButtonAction(ButtonCallback callback, void* From) {
    ButtonAction = callback ? callback : BtnAction;
    frmControl[0] = From;
}

void Button::InitButtonEntered(ButtonCallback callback, void* From) {
    ButtonEntered = callback ? callback : BtnEntered;
    frmControl[1] = From;
}

void Button::InitButtonExited(ButtonCallback callback, void* From) {
    ButtonExited = callback ? callback : BtnExited;
    frmControl[2] = From;
}

// Each reaction shows its picture before calling back, so a callback that changes the
// pictures or hides the button has the last word.
void Button::mouseDown() {
    if (!bEnable) return;
    setLook(Look::Down);
}

void Button::mouseUp() {
    if (!bEnable) return;
    setLook(Look::Up);
    ButtonAction(frmControl[0], this);
}

void Button::click() {
    // The release goes to the button that took the press, even if the press changed its screen.
    QPointer<Button> target = this;
    mouseDown();
    if (target) mouseUp();
}

void Button::mouseEntered() {
    if (!bEnable) return;
    setLook(Look::Move);
    ButtonEntered(frmControl[1], this);
}

void Button::mouseExited() {
    if (!bEnable) return;
    setLook(Look::Up);
    ButtonExited(frmControl[2], this);
}

const Picture& Button::shownPicture() const {
    switch (m_look) {
    case Look::Move:
        return BtnImageMove;
    case Look::Down:
        return BtnImageDown;
    case Look::Up:
        break;
    }
    return BtnImageUp;
}

QRectF Button::pictureRect() const {
    const Picture& picture = shownPicture();
    if (picture.isNull()) return rect();
    const QSizeF natural = picture.naturalSize();
    return QRectF(QPointF(0, (height() - natural.height()) / 2.0), natural);
}

void Button::setChoice(Choice kind, bool chosen) {
    if (m_choice == kind && m_chosen == chosen) return;
    const bool changed = m_chosen != chosen;
    m_choice = kind;
    m_chosen = chosen;
    if (!changed) return;
    QAccessible::State state;
    (kind == Choice::Select ? state.selected : state.checked) = true;
    QAccessibleStateChangeEvent event(this, state);
    QAccessible::updateAccessibility(&event);
}

void Button::setLook(Look look) {
    m_look = look;
    update();
}

void Button::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Picture& picture = shownPicture();
    if (!picture.isNull()) picture.draw(painter, pictureRect(), devicePixelRatioF());
    drawCaption(painter);
}

void Button::mousePressEvent(QMouseEvent* event) {
    // A disabled button lets the press through to whatever lies behind it.
    if (!bEnable || event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    event->accept();
    mouseDown();
}

void Button::mouseReleaseEvent(QMouseEvent* event) {
    // Qt delivers the release to the widget that took the press, wherever the pointer is now.
    if (!bEnable || event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    event->accept();
    mouseUp();
}

void Button::mouseDoubleClickEvent(QMouseEvent* event) {
    // The second press of a double click is a press like any other.
    mousePressEvent(event);
}

void RegisterHover(std::initializer_list<Button*> buttons) {
    for (Button* button : buttons)
        if (button) button->addTrackingRect(button->visibleRect(), button, nullptr, false);
}
