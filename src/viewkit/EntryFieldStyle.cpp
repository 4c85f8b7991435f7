#include "EntryFieldStyle.h"

#include <QWidget>

namespace {
const char* const kStyle = R"(
QLineEdit, QDateTimeEdit {
    background: #ffffff;
    color: #13284d;
    selection-background-color: #ff8000;
    selection-color: #ffffff;
    font-family: "Courier";
}
QDateTimeEdit {
    border: 2px solid #36d6ff;
    border-radius: 10px;
    padding-left: 8px;
    font-size: 22px;
    font-weight: bold;
}
QDateTimeEdit::up-button, QDateTimeEdit::down-button {
    width: 28px;
    border-left: 1px solid #c5d0de;
    background: #e9edf2;
}
QDateTimeEdit::up-button { subcontrol-position: top right; border-top-right-radius: 8px; }
QDateTimeEdit::down-button { subcontrol-position: bottom right; border-bottom-right-radius: 8px; }
QDateTimeEdit::up-button:hover, QDateTimeEdit::down-button:hover { background: #ffd9b0; }
QDateTimeEdit::up-arrow { image: url(":/pictures/ButtonSelectBarUp_common.png"); width: 22px; height: 12px; }
QDateTimeEdit::down-arrow { image: url(":/pictures/ButtonSelectBarDown_common.png"); width: 22px; height: 12px; }
)";
} // namespace

void ApplyEntryFieldStyle(QWidget* field) {
    if (field) field->setStyleSheet(QString::fromLatin1(kStyle));
}
