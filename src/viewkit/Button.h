#pragma once

#include "HoverOwner.h"
#include "NSImageViewS.h"

#include <initializer_list>

class Button;

// What a button calls: the context given at registration, and the button itself.
using ButtonCallback = void (*)(void* context, Button* button);

void BtnAction(void* context, Button* button);
void BtnEntered(void* context, Button* button);
void BtnExited(void* context, Button* button);

// The one control of the application that reacts to the mouse: three pictures (at rest, under
// the pointer, pressed) drawn at their natural size against the left edge, an enable flag, an
// optional caption, and three callbacks each with its own context.
class Button : public NSImageViewS, public HoverOwner {
    Q_OBJECT
public:
    enum class Look { Up, Move, Down };

    explicit Button(const NSRect& frame);

    // Sets the three pictures (a null name leaves that look empty) and joins the parent, on top
    // of its siblings; may be called again at any time.
    void InitImage(const QString& up, const QString& move, const QString& down, const QString& ImageType,
                   NSViewS* ParentView);
    Picture GetImage(const QString& name, const QString& ImageType) const {
        return NSImageViewS::GetImage(name, ImageType);
    }

    void SetEnable(qint8 flag) { bEnable = flag; }
    void InitButtonAction(ButtonCallback callback, void* From);
    void InitButtonEntered(ButtonCallback callback, void* From);
    void InitButtonExited(ButtonCallback callback, void* From);

    void mouseDown();
    void mouseUp();
    void mouseEntered() override;
    void mouseExited() override;

    // One more hover registration of the part of the button that is on view now.
    void RegisterHover();

    Look look() const { return m_look; }
    const Picture& shownPicture() const;
    QString shownPictureName() const { return shownPicture().name(); }

    Picture BtnImageUp;
    Picture BtnImageMove;
    Picture BtnImageDown;
    qint8 bEnable = 1;
    ButtonCallback ButtonAction = BtnAction;
    ButtonCallback ButtonEntered = BtnEntered;
    ButtonCallback ButtonExited = BtnExited;
    void* frmControl[3] = {nullptr, nullptr, nullptr}; // contexts of action, entered, exited

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void setLook(Look look);

    Look m_look = Look::Up;
};

// Hover registration of several buttons, in order; null entries are skipped.
void RegisterHover(std::initializer_list<Button*> buttons);
