#include "EntryFieldStyle.h"

#include <QWidget>

namespace {
// The fields are drawn transparent over the "textbox" picture, whose white slot is their well;
// the pickers' text sits low in their frame so that it is centred in that slot.
const char* const kStyle = R"(
QLineEdit, QDateTimeEdit {
    background: transparent;
    border: none;
    color: #13284d;
    selection-background-color: #ff8000;
    selection-color: #ffffff;
    font-family: "Courier";
}
QDateTimeEdit {
    padding-top: 22px;
    padding-left: 6px;
    font-size: 22px;
    font-weight: bold;
}
QDateTimeEdit::up-button, QDateTimeEdit::down-button {
    subcontrol-origin: content;
    width: 26px;
    height: 13px;
    border-left: 1px solid #c5d0de;
    background: #e9edf2;
}
QDateTimeEdit::up-button { subcontrol-position: top right; border-top-right-radius: 7px; }
QDateTimeEdit::down-button { subcontrol-position: bottom right; border-bottom-right-radius: 7px; }
QDateTimeEdit::up-button:hover, QDateTimeEdit::down-button:hover { background: #ffd9b0; }
QDateTimeEdit::up-arrow { image: url(":/pictures/ButtonSelectBarUp_common.png"); width: 20px; height: 11px; }
QDateTimeEdit::down-arrow { image: url(":/pictures/ButtonSelectBarDown_common.png"); width: 20px; height: 11px; }
)";
} // namespace

void ApplyEntryFieldStyle(QWidget* field) {
    if (field) field->setStyleSheet(QString::fromLatin1(kStyle));
}
