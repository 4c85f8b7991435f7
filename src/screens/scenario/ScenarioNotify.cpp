#include "ScenarioNotify.h"

#include "Frame_Scenario.h"

#include <QLineEdit>

ScenarioNotify::ScenarioNotify(QObject* parent) : QObject(parent) {}

void ScenarioNotify::setDelegateOf(QLineEdit* field) {
    if (!field) return;
    // Every change counts, not only typing (textEdited): a screen reader inserts text through the
    // field's setText. The code itself never changes the field's text.
    connect(field, &QLineEdit::textChanged, this, [this, field] { controlTextDidChange(field); });
}

void ScenarioNotify::controlTextDidChange(const QLineEdit* field) {
    if (!scenario || !field) return;
    scenario->list.NameChanged(field->text());
    // One more registration of "Create" on every change that leaves a name: they pile up as the
    // user types.
    if (scenario->list.bCreateEnabled() && scenario->BtnNewCreate) RegisterHover({scenario->BtnNewCreate});
}
