#pragma once

#include <QObject>

class Frame_Scenario;
class QLineEdit;

// Delegate of the scenario name field: told of every change the user makes to its text, typed or
// inserted by assistive technology, it enables "Create" while the field holds anything.
class ScenarioNotify : public QObject {
    Q_OBJECT
public:
    explicit ScenarioNotify(QObject* parent = nullptr);

    void setTempScenario(Frame_Scenario* screen) { scenario = screen; }
    // From now on every change of the field's text calls controlTextDidChange.
    void setDelegateOf(QLineEdit* field);
    void controlTextDidChange(const QLineEdit* field);

    Frame_Scenario* scenario = nullptr;
};
