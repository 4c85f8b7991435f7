#include "ButtonAccessible.h"

#include "Button.h"
#include "CaptionAccessible.h"

#include <QHash>
#include <QPointer>

namespace {

// Buttons without a caption are named after the picture they show at rest; the current tab and
// chosen looks of a picture share its name.
const QHash<QString, QString>& DefaultNames() {
    static const QHash<QString, QString> names = {
        {QStringLiteral("but_question"), QStringLiteral("Help")},
        {QStringLiteral("command_normal_menus"), QStringLiteral("Program scenario")},
        {QStringLiteral("clock_normal_menus"), QStringLiteral("Alarm/Clock")},
        {QStringLiteral("usb_normal_menus"), QStringLiteral("Synchronization")},
        {QStringLiteral("movement"), QStringLiteral("Movement tab")},
        {QStringLiteral("movement_over"), QStringLiteral("Movement tab")},
        {QStringLiteral("sound"), QStringLiteral("Sound tab")},
        {QStringLiteral("sound_over"), QStringLiteral("Sound tab")},
        {QStringLiteral("lazer"), QStringLiteral("Laser tab")},
        {QStringLiteral("lazer_over"), QStringLiteral("Laser tab")},
        {QStringLiteral("face"), QStringLiteral("Face tab")},
        {QStringLiteral("face_over"), QStringLiteral("Face tab")},
        {QStringLiteral("play"), QStringLiteral("Play")},
        {QStringLiteral("play_over"), QStringLiteral("Play")},
        {QStringLiteral("ButtonArrowUp_common"), QStringLiteral("Move up")},
        {QStringLiteral("ButtonArrowLeft_common"), QStringLiteral("Move left")},
        {QStringLiteral("ButtonArrowDown_common"), QStringLiteral("Move down")},
        {QStringLiteral("ButtonArrowRight_common"), QStringLiteral("Move right")},
        {QStringLiteral("ButtonArrowTurnRight_common"), QStringLiteral("Turn right")},
        {QStringLiteral("ButtonArrowTurnLeft_common"), QStringLiteral("Turn left")},
        {QStringLiteral("ButtonArrowArroundLeft_common"), QStringLiteral("Circle left")},
        {QStringLiteral("ButtonArrowArroundRight_common"), QStringLiteral("Circle right")},
        {QStringLiteral("ButtonArrowStop_common"), QStringLiteral("Stop")},
        {QStringLiteral("SelectBarArrow_common"), QStringLiteral("Choose scenario")},
        {QStringLiteral("ButtonSmallCircleUp_common"), QStringLiteral("Arrow up")},
        {QStringLiteral("ButtonSmallCircleLeft_common"), QStringLiteral("Arrow left")},
        {QStringLiteral("ButtonSmallCircleDown_common"), QStringLiteral("Arrow down")},
        {QStringLiteral("ButtonSmallCircleRight_common"), QStringLiteral("Arrow right")},
        {QStringLiteral("but_common_long_right_BtnSilver"), QStringLiteral("Replay")},
        {QStringLiteral("ButtonSoundDe_common"), QStringLiteral("Volume down")},
        {QStringLiteral("ButtonSoundPlus_common"), QStringLiteral("Volume up")},
        {QStringLiteral("ButtonSelectBarUp_common"), QStringLiteral("Scenario list up")},
        {QStringLiteral("ButtonSelectBarDown_common"), QStringLiteral("Scenario list down")},
        {QStringLiteral("Btn_X_up"), QStringLiteral("Delete scenario")},
        {QStringLiteral("Btn_Go_up"), QStringLiteral("Go")},
        {QStringLiteral("Lazer_normal_1"), QStringLiteral("Robot configuration 1")},
        {QStringLiteral("Lazer_normal_2"), QStringLiteral("Robot configuration 2")},
        {QStringLiteral("Lazer_normal_3"), QStringLiteral("Robot configuration 3")},
    };
    return names;
}

QAccessibleInterface* Factory(const QString& className, QObject* object) {
    if (className == QLatin1String("Button")) {
        if (auto* button = qobject_cast<Button*>(object)) return new ButtonAccessible(button);
    } else if (className == QLatin1String("NSImageViewS")) {
        if (auto* view = qobject_cast<NSImageViewS*>(object)) return new CaptionAccessible(view);
    }
    return nullptr;
}

} // namespace

ButtonAccessible::ButtonAccessible(Button* button) : QAccessibleWidget(button, QAccessible::Button) {}

Button* ButtonAccessible::button() const {
    return static_cast<Button*>(widget());
}

QAccessible::Role ButtonAccessible::role() const {
    return QAccessible::Button;
}

QAccessible::State ButtonAccessible::state() const {
    QAccessible::State s = QAccessibleWidget::state();
    // A disabled Button keeps Qt's enabled flag: it only ignores the mouse.
    if (!button()->bEnable) s.disabled = true;
    return s;
}

QString ButtonAccessible::text(QAccessible::Text t) const {
    if (t == QAccessible::Name) return NameOf(button());
    return QAccessibleWidget::text(t);
}

QStringList ButtonAccessible::actionNames() const {
    return QStringList(pressAction()) + QAccessibleWidget::actionNames();
}

void ButtonAccessible::doAction(const QString& actionName) {
    if (actionName != pressAction()) {
        QAccessibleWidget::doAction(actionName);
        return;
    }
    // A click: the press shows the down picture, the release the up picture and runs the action.
    // The release goes to the button that took the press, even if the press changed its screen.
    QPointer<Button> target = button();
    target->mouseDown();
    if (target) target->mouseUp();
}

QStringList ButtonAccessible::keyBindingsForAction(const QString&) const {
    return {};
}

QString ButtonAccessible::OneLine(const QString& caption) {
    QString line = caption;
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    return line.simplified();
}

QString ButtonAccessible::DefaultName(const QString& upPicture) {
    return DefaultNames().value(upPicture);
}

QString ButtonAccessible::NameOf(const Button* button) {
    if (!button) return {};
    if (!button->accessibleName().isEmpty()) return button->accessibleName();
    const QString caption = OneLine(button->captionText());
    if (!caption.isEmpty()) return caption;
    const QString name = DefaultName(button->BtnImageUp.name());
    return name.isEmpty() ? QStringLiteral("Button") : name;
}

void ButtonAccessible::Install() {
    static const bool installed = [] {
        QAccessible::installFactory(Factory);
        return true;
    }();
    Q_UNUSED(installed);
}
