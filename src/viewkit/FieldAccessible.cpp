#include "FieldAccessible.h"

#include <QAbstractSpinBox>
#include <QFontMetrics>
#include <QLineEdit>
#include <QValidator>

FieldAccessible::FieldAccessible(QWidget* field)
    : ViewAccessible(field, qobject_cast<QAbstractSpinBox*>(field) ? QAccessible::SpinBox
                                                                   : QAccessible::EditableText) {
    if (isSpinBox()) return;
    addControllingSignal(QStringLiteral("textChanged(const QString&)"));
    addControllingSignal(QStringLiteral("returnPressed()"));
}

QLineEdit* FieldAccessible::edit() const {
    if (auto* own = qobject_cast<QLineEdit*>(widget())) return own;
    // A spin box always holds one (Qt makes a new one when it is taken away).
    return widget()->findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
}

bool FieldAccessible::isSpinBox() const {
    return qobject_cast<QAbstractSpinBox*>(widget()) != nullptr;
}

bool FieldAccessible::readable() const {
    return edit()->echoMode() == QLineEdit::Normal;
}

int FieldAccessible::at(int offset) const {
    return offset == -2 ? cursorPosition() : offset;
}

void* FieldAccessible::interface_cast(QAccessible::InterfaceType t) {
    switch (t) {
    case QAccessible::TextInterface:
        return static_cast<QAccessibleTextInterface*>(this);
    case QAccessible::EditableTextInterface:
        return static_cast<QAccessibleEditableTextInterface*>(this);
    case QAccessible::ValueInterface:
        if (isSpinBox()) return static_cast<QAccessibleValueInterface*>(this);
        break;
    default:
        break;
    }
    return ViewAccessible::interface_cast(t);
}

QString FieldAccessible::text(QAccessible::Text t) const {
    if (t == QAccessible::Value) {
        if (isSpinBox()) return static_cast<QAbstractSpinBox*>(widget())->text();
        if (readable()) return edit()->text();
        if (edit()->echoMode() != QLineEdit::NoEcho) return QString(edit()->text().size(), QLatin1Char('*'));
    }
    return ViewAccessible::text(t);
}

void FieldAccessible::setText(QAccessible::Text t, const QString& text) {
    if (t != QAccessible::Value) {
        ViewAccessible::setText(t, text);
        return;
    }
    // What the field would refuse from the keyboard it refuses from a reader too.
    QString value = text;
    int position = 0;
    if (const QValidator* v = edit()->validator();
        v && v->validate(value, position) != QValidator::Acceptable)
        return;
    edit()->setText(value);
}

QAccessible::State FieldAccessible::state() const {
    QAccessible::State s = ViewAccessible::state();
    if (edit()->isReadOnly())
        s.readOnly = true;
    else
        s.editable = true;
    if (!readable()) s.passwordEdit = true;
    s.selectableText = true;
    return s;
}

void FieldAccessible::selection(int selectionIndex, int* startOffset, int* endOffset) const {
    *startOffset = *endOffset = 0;
    if (selectionIndex != 0 || !edit()->hasSelectedText()) return;
    *startOffset = edit()->selectionStart();
    *endOffset = edit()->selectionEnd();
}

int FieldAccessible::selectionCount() const {
    return edit()->hasSelectedText() ? 1 : 0;
}

void FieldAccessible::addSelection(int startOffset, int endOffset) {
    setSelection(0, startOffset, endOffset);
}

void FieldAccessible::removeSelection(int selectionIndex) {
    if (selectionIndex == 0) edit()->deselect();
}

void FieldAccessible::setSelection(int selectionIndex, int startOffset, int endOffset) {
    if (selectionIndex == 0) edit()->setSelection(startOffset, endOffset - startOffset);
}

int FieldAccessible::cursorPosition() const {
    return edit()->cursorPosition();
}

void FieldAccessible::setCursorPosition(int position) {
    edit()->setCursorPosition(position);
}

QString FieldAccessible::text(int startOffset, int endOffset) const {
    if (startOffset > endOffset || !readable()) return {};
    return edit()->text().mid(startOffset, endOffset - startOffset);
}

QString FieldAccessible::textBeforeOffset(int offset, QAccessible::TextBoundaryType boundaryType,
                                          int* startOffset, int* endOffset) const {
    if (!readable()) {
        *startOffset = *endOffset = -1;
        return {};
    }
    return QAccessibleTextInterface::textBeforeOffset(at(offset), boundaryType, startOffset, endOffset);
}

QString FieldAccessible::textAfterOffset(int offset, QAccessible::TextBoundaryType boundaryType,
                                         int* startOffset, int* endOffset) const {
    if (!readable()) {
        *startOffset = *endOffset = -1;
        return {};
    }
    return QAccessibleTextInterface::textAfterOffset(at(offset), boundaryType, startOffset, endOffset);
}

QString FieldAccessible::textAtOffset(int offset, QAccessible::TextBoundaryType boundaryType,
                                      int* startOffset, int* endOffset) const {
    if (!readable()) {
        *startOffset = *endOffset = -1;
        return {};
    }
    return QAccessibleTextInterface::textAtOffset(at(offset), boundaryType, startOffset, endOffset);
}

int FieldAccessible::characterCount() const {
    return int(edit()->text().size());
}

QRect FieldAccessible::characterRect(int offset) const {
    const QString character = text(offset, offset + 1);
    if (character.isEmpty()) return {};
    // The caret says where the line lies and how far it is scrolled; a character lies the width
    // of the text between them away from it, on the same line.
    QLineEdit* field = edit();
    const QRect caret = field->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    const QFontMetrics metrics(field->font());
    const QString shown = field->displayText();
    const int cursor = field->cursorPosition();
    const int x = caret.center().x() + (offset >= cursor
                                            ? metrics.horizontalAdvance(shown.mid(cursor, offset - cursor))
                                            : -metrics.horizontalAdvance(shown.mid(offset, cursor - offset)));
    return DrawnRect(field, QRectF(x, caret.top(), metrics.horizontalAdvance(character), metrics.height()));
}

int FieldAccessible::offsetAtPoint(const QPoint& point) const {
    return edit()->cursorPositionAt(LocalPoint(edit(), point).toPoint());
}

void FieldAccessible::scrollToSubstring(int startIndex, int endIndex) {
    edit()->setCursorPosition(endIndex);
    edit()->setCursorPosition(startIndex);
}

QString FieldAccessible::attributes(int offset, int* startOffset, int* endOffset) const {
    // One font, one colour: no runs of attributes.
    *startOffset = *endOffset = offset;
    return {};
}

void FieldAccessible::deleteText(int startOffset, int endOffset) {
    replaceText(startOffset, endOffset, QString());
}

void FieldAccessible::insertText(int offset, const QString& text) {
    replaceText(offset, offset, text);
}

void FieldAccessible::replaceText(int startOffset, int endOffset, const QString& text) {
    const QString now = edit()->text();
    if (startOffset < 0 || startOffset > endOffset || endOffset > now.size()) return;
    edit()->setText(QString(now).replace(startOffset, endOffset - startOffset, text));
}

// A spin box's value, bounds and step, as it names them.
QVariant FieldAccessible::currentValue() const {
    return widget()->property("value");
}

void FieldAccessible::setCurrentValue(const QVariant& value) {
    widget()->setProperty("value", value);
}

QVariant FieldAccessible::maximumValue() const {
    return widget()->property("maximum");
}

QVariant FieldAccessible::minimumValue() const {
    return widget()->property("minimum");
}

QVariant FieldAccessible::minimumStepSize() const {
    return widget()->property("stepSize");
}
