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
    if (!scenario || !field) return;
    scenario->list.NameChanged(field->text());
    // One more registration of "Create" on every change that leaves a name: they pile up as the
    // user types.
    if (scenario->list.bCreateEnabled() && scenario->BtnNewCreate) scenario->BtnNewCreate->RegisterHover();
}
