#include "ScenarioNotify.h"

#include "Frame_Scenario.h"

#include <QLineEdit>

ScenarioNotify::ScenarioNotify(QObject* parent) : QObject(parent) {}

void ScenarioNotify::setDelegateOf(QLineEdit* field) {
    if (!field) return;
    // textEdited, not textChanged: only the user's own edits count.
    connect(field, &QLineEdit::textEdited, this, [this, field] { controlTextDidChange(field); });
}

void ScenarioNotify::controlTextDidChange(const QLineEdit* field) {
    if (!scenario || !field || !scenario->BtnNewCreate) return;
    Button* create = scenario->BtnNewCreate;
    if (!scenario->NameChanged(field->text())) {
        create->SetEnable(0);
        return;
    }
    create->SetEnable(1);
    // One more registration on every change: they pile up as the user types.
    create->RegisterHover();
}
