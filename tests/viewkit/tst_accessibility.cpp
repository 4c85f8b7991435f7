#include "AppHarness.h"
#include "Button.h"
#include "Frame_Control.h"
#include "Frame_MainMenu.h"
#include "Frame_Scenario.h"

#include <QAccessible>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QTest>

// What a screen reader sees of the application, through QAccessible only, in the real window.
class TestAccessibility : public QObject {
    Q_OBJECT
private slots:
    // Every control, on every screen and page, is a push button with a name a person can say,
    // and a press action; every text field has a name.
    void everyControlIsNamed() {
        AppHarness app;
        QVERIFY(app.waitForMainMenuReady()); // the menu's Settings gets its caption on arrival
        QStringList unnamed;
        for (Button* button : app.root()->findChildren<Button*>()) {
            QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(button);
            QVERIFY(iface);
            QCOMPARE(iface->role(), QAccessible::Button);
            const QString name = iface->text(QAccessible::Name);
            if (name.isEmpty() || name == QLatin1String("Button") || name.contains(QLatin1Char('\n')))
                unnamed << button->BtnImageUp.name();
            QVERIFY(iface->actionInterface() && iface->actionInterface()->actionNames().contains(
                                                    QAccessibleActionInterface::pressAction()));
        }
        QVERIFY2(unnamed.isEmpty(), qPrintable(unnamed.join(QStringLiteral(", "))));
        for (const QWidget* field : app.root()->findChildren<QDateTimeEdit*>())
            QVERIFY(!field->accessibleName().isEmpty());
        QVERIFY(!app.root()->frmScenario->txtScenarioName->accessibleName().isEmpty());
    }

    // The press action does what a click does: the screen changes, the button comes back up.
    void pressDoesWhatAClickDoes() {
        AppHarness app;
        QVERIFY(app.waitForMainMenuReady());
        Button* program = app.root()->frmMainMenu->BtnProgram;
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(program);
        QCOMPARE(iface->text(QAccessible::Name), QStringLiteral("Program scenario"));
        iface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(app.root()->frmScenario));
        QCOMPARE(program->look(), Button::Look::Up);
    }
};

QTEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
