#pragma once

#include "HoverOwner.h"
#include "NSImageViewS.h"
#include "Pressable.h"

#include <initializer_list>

class Button;

// What a button calls: the context given at registration, and the button itself.
using ButtonCallback = void (*)(void* context, Button* button);

void BtnAction(void* context, Button* button);
void BtnEntered(void* context, Button* button);
void BtnExited(void* context, Button* button);

// The one control of the application that reacts to the mouse: three pictures (at rest, under
// the pointer, pressed) drawn at their natural size against the left edge, an enable flag, an
// optional caption, and three callbacks each with its own context. The keyboard reaches it by
// Tab only (a click never takes the focus), and presses it as a click does.
class Button : public NSImageViewS, public HoverOwner, public Pressable {
    Q_OBJECT
public:
    enum class Look { Up, Move, Down };
    // What the pictures say of a choice, for assistive technology: one of an on/off or
    // one-of-several set (checked), or the item chosen in a list (selected).
    enum class Choice { None, Check, Select };

    explicit Button(const NSRect& frame);

    // Sets the three pictures (a null name leaves that look empty) and joins the parent, on top
    // of its siblings; may be called again at any time.
    void InitImage(const QString& up, const QString& move, const QString& down, const QString& ImageType,
                   NSViewS* ParentView);
    Picture GetImage(const QString& name, const QString& ImageType) const {
        return NSImageViewS::GetImage(name, ImageType);
    }

    // A disabled button is skipped by Tab as well as ignoring the mouse.
    void SetEnable(qint8 flag);
    void InitButtonAction(ButtonCallback callback, void* From);
    void InitButtonEntered(ButtonCallback callback, void* From);
    void InitButtonExited(ButtonCallback callback, void* From);

    void mouseDown();
    void mouseUp();
    // A whole click: what the mouse, the keyboard and assistive technology all do to press it.
    void click();
    void press() override { click(); }
    void mouseEntered() override;
    void mouseExited() override;

    Look look() const { return m_look; }
    const Picture& shownPicture() const;
    QString shownPictureName() const { return shownPicture().name(); }
    // Where the shown picture is drawn, in the button's coordinates; the whole button if none.
    QRectF pictureRect() const;
    // The focus ring goes round the picture, not the frame the picture may not fill.
    QRectF focusRect() const override { return pictureRect(); }

    // Set where the screen swaps the pictures that show the choice; assistive technology is told.
    void setChoice(Choice kind, bool chosen);
    Choice choice() const { return m_choice; }
    bool chosen() const { return m_chosen; }

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
    Choice m_choice = Choice::None;
    bool m_chosen = false;
};

// One more hover registration of each button, of the part of it on view now, in order; null
// entries are skipped.
void RegisterHover(std::initializer_list<Button*> buttons);
