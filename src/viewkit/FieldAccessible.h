#pragma once

#include "ViewAccessible.h"

class QLineEdit;

// What assistive technologies see of an entry field (a line edit, or a spin box such as the date
// and time editors): what Qt's own interface gives a reader - its text to read, select and edit, a
// spin box's value, the states of an editable field - with every place in it reported where it is
// drawn (scaled window, screen scale), as every view of the kit reports its own.
class FieldAccessible : public ViewAccessible,
                        public QAccessibleTextInterface,
                        public QAccessibleEditableTextInterface,
                        public QAccessibleValueInterface {
public:
    explicit FieldAccessible(QWidget* field);

    void* interface_cast(QAccessible::InterfaceType t) override;
    QString text(QAccessible::Text t) const override;
    void setText(QAccessible::Text t, const QString& text) override;
    QAccessible::State state() const override;

    void selection(int selectionIndex, int* startOffset, int* endOffset) const override;
    int selectionCount() const override;
    void addSelection(int startOffset, int endOffset) override;
    void removeSelection(int selectionIndex) override;
    void setSelection(int selectionIndex, int startOffset, int endOffset) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int startOffset, int endOffset) const override;
    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType boundaryType, int* startOffset,
                             int* endOffset) const override;
    QString textAfterOffset(int offset, QAccessible::TextBoundaryType boundaryType, int* startOffset,
                            int* endOffset) const override;
    QString textAtOffset(int offset, QAccessible::TextBoundaryType boundaryType, int* startOffset,
                         int* endOffset) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int startIndex, int endIndex) override;
    QString attributes(int offset, int* startOffset, int* endOffset) const override;

    void deleteText(int startOffset, int endOffset) override;
    void insertText(int offset, const QString& text) override;
    void replaceText(int startOffset, int endOffset, const QString& text) override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

private:
    // The line edit that holds the text: the field itself, or the one inside a spin box.
    QLineEdit* edit() const;
    bool isSpinBox() const;
    // Whether the text may be read out (not a password's).
    bool readable() const;
    // Offset -2 stands for the cursor.
    int at(int offset) const;
};
