#include "AppHarness.h"
#include "AppInvariants.h"
#include "Button.h"
#include "Frame_Control.h"
#include "Frame_MainMenu.h"
#include "Frame_MoveMent.h"
#include "Frame_Scenario.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QTest>

namespace {

enum How { Typed, TypedAtOnce, Pasted };

// The scenario screen with the create view open and the name field holding the keyboard focus,
// reached by clicks from the main menu.
Frame_Scenario* OpenNameField(AppHarness& app) {
    if (!app.waitForMainMenuReady()) return nullptr;
    app.click(app.root()->frmMainMenu->BtnProgram);
    Frame_Scenario* s = app.root()->frmScenario;
    app.click(s->BtnCreate);
    app.click(s->txtScenarioName);
    return s->txtScenarioName->hasFocus() ? s : nullptr;
}

// One key event per character, as a keyboard sends them; characters outside the basic plane
// travel as their surrogate pair in one event.
void TypeEach(AppHarness& app, const QString& text) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        const qsizetype n = text.at(i).isHighSurrogate() && i + 1 < text.size() ? 2 : 1;
        QTest::sendKeyEvent(QTest::Click, app.handle(), Qt::Key_unknown, text.mid(i, n), Qt::NoModifier);
        i += n - 1;
    }
}

void Enter(AppHarness& app, How how, const QString& text) {
    switch (how) {
    case Typed:
        TypeEach(app, text);
        return;
    case TypedAtOnce:
        // An input method hands over a composed string in one go.
        QTest::sendKeyEvent(QTest::Click, app.handle(), Qt::Key_unknown, text, Qt::NoModifier);
        return;
    case Pasted:
        QGuiApplication::clipboard()->setText(text);
        QTest::keyClick(app.handle(), Qt::Key_V, Qt::ControlModifier);
        return;
    }
}

void EraseAll(AppHarness& app) {
    QTest::keyClick(app.handle(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(app.handle(), Qt::Key_Backspace);
}

QString Mixed(int length) {
    const QString pattern = QStringLiteral("Robot scenario 42 - ");
    QString text;
    while (text.size() < length) text += pattern;
    return text.left(length);
}

} // namespace

// The name field of the scenario screen under awkward input, through the real window: long,
// pasted, emoji, right-to-left and invisible text. "Create" looks at nothing but the length.
class TestNameField : public QObject {
    Q_OBJECT
private slots:
    void anyTextWithALengthEnablesCreate_data() {
        QTest::addColumn<int>("how");
        QTest::addColumn<QString>("text");
        // Qt's line edit lays its whole text out again on every key, so typing key by key grows
        // with the square of the length: 2 000 keys here, 10 000 characters in one go below.
        QTest::newRow("2 000 characters typed key by key") << int(Typed) << Mixed(2000);
        QTest::newRow("10 000 characters typed at once") << int(TypedAtOnce) << Mixed(10000);
        QTest::newRow("10 000 characters pasted") << int(Pasted) << Mixed(10000);
        QTest::newRow("emoji") << int(Typed) << QStringLiteral(u"\U0001F916\U0001F600");
        QTest::newRow("joined emoji sequence")
            << int(TypedAtOnce) << QStringLiteral(u"\U0001F469\u200D\U0001F4BB");
        QTest::newRow("Hebrew, right to left")
            << int(Typed) << QStringLiteral(u"\u05E8\u05D5\u05D1\u05D5\u05D8");
        QTest::newRow("Arabic with digits")
            << int(TypedAtOnce) << QStringLiteral(u"\u0631\u0648\u0628\u0648\u062A 7");
        QTest::newRow("right-to-left override pasted")
            << int(Pasted) << QStringLiteral(u"\u202Etobor\u202C abc");
        QTest::newRow("mixed directions pasted")
            << int(Pasted) << QStringLiteral(u"abc \u05D0\u05D1\u05D2 123 \u0627\u0628\u062A def");
        QTest::newRow("a single space") << int(Typed) << QStringLiteral(" ");
        QTest::newRow("zero width space") << int(TypedAtOnce) << QStringLiteral(u"\u200B");
        QTest::newRow("combining marks") << int(Typed) << QStringLiteral(u"e\u0301\u0301\u0301");
        QTest::newRow("format directives") << int(Pasted) << QStringLiteral("%s%n%d%%");
    }

    void anyTextWithALengthEnablesCreate() {
        QFETCH(int, how);
        QFETCH(QString, text);
        AppHarness app;
        Frame_Scenario* s = OpenNameField(app);
        QVERIFY(s);
        const AppInvariants invariants(app.root());

        Enter(app, How(how), text);
        QCOMPARE(s->txtScenarioName->text().size(), text.size());
        QCOMPARE(s->txtScenarioName->text(), text);
        QCOMPARE(s->BtnNewCreate->bEnable, qint8(1));
        QCOMPARE(invariants.check(), QStringList());

        EraseAll(app);
        QVERIFY(s->txtScenarioName->text().isEmpty());
        QCOMPARE(s->BtnNewCreate->bEnable, qint8(0));
        app.click(s->BtnNewCreate); // disabled: nothing happens
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(s));

        // Undo brings the text back, and "Create" with it.
        QTest::keyClick(app.handle(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(s->txtScenarioName->text(), text);
        QCOMPARE(s->BtnNewCreate->bEnable, qint8(1));
        app.click(s->BtnNewCreate);
        QCOMPARE(app.shownScreen(), static_cast<QWidget*>(app.root()->frmMovement));
        // The name goes nowhere: the list still holds its twenty names.
        QCOMPARE(s->numOfList, 20);
        QCOMPARE(s->name(19), QStringLiteral("19"));
        QCOMPARE(invariants.check(), QStringList());
    }

    // A character outside the basic plane is two code units, yet one Backspace takes it, and
    // the empty field disables "Create" again.
    void deletingAnEmojiEmptiesTheField() {
        AppHarness app;
        Frame_Scenario* s = OpenNameField(app);
        QVERIFY(s);
        Enter(app, Typed, QStringLiteral(u"\U0001F916"));
        QCOMPARE(s->txtScenarioName->text().size(), 2);
        QCOMPARE(s->BtnNewCreate->bEnable, qint8(1));
        QTest::keyClick(app.handle(), Qt::Key_Backspace);
        QCOMPARE(s->txtScenarioName->text(), QString());
        QCOMPARE(s->BtnNewCreate->bEnable, qint8(0));
    }

    // Undo and redo change the text as much as typing does.
    void undoAndRedoAreEditsToo() {
        AppHarness app;
        Frame_Scenario* s = OpenNameField(app);
        QVERIFY(s);
        Enter(app, Typed, QStringLiteral("x"));
        QCOMPARE(s->BtnNewCreate->bEnable, qint8(1));
        QTest::keyClick(app.handle(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(s->txtScenarioName->text(), QString());
        QCOMPARE(s->BtnNewCreate->bEnable, qint8(0));
        QTest::keyClick(app.handle(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(s->txtScenarioName->text(), QStringLiteral("x"));
        QCOMPARE(s->BtnNewCreate->bEnable, qint8(1));
    }

    // There is no maximum length: a paste longer than any default limit arrives whole.
    void noMaximumLength() {
        AppHarness app;
        Frame_Scenario* s = OpenNameField(app);
        QVERIFY(s);
        const QString text = Mixed(50000);
        Enter(app, Pasted, text);
        QCOMPARE(s->txtScenarioName->text().size(), text.size());
        QCOMPARE(s->BtnNewCreate->bEnable, qint8(1));
    }

    void screenshot() {
        AppHarness app;
        Frame_Scenario* s = OpenNameField(app);
        QVERIFY(s);
        Enter(app, TypedAtOnce, QStringLiteral(u"\U0001F916 \u05E8\u05D5\u05D1\u05D5\u05D8 robot"));
        QVERIFY(app.grab(QStringLiteral("/tmp/reliability-namefield.png")));
    }
};

QTEST_MAIN(TestNameField)
#include "tst_namefield.moc"
