#include "ScenarioList.h"

#include <QTest>

namespace {

// `steps` as "D*6 U 3 X*2": Down six times, Up, choose row 3, remove twice.
void Run(ScenarioList& list, const QString& steps) {
    for (const QString& token : steps.split(' '))
        for (int i = qMax(1, token.section('*', 1).toInt()); i > 0; --i) {
            if (token[0] == 'U')
                list.Up();
            else if (token[0] == 'D')
                list.Down();
            else if (token[0] == 'X')
                list.Remove();
            else
                list.ChooseRow(token[0].digitValue());
        }
}

// The rows top down as the screen shows them, the one with the highlight bar in brackets.
QString Rows(const ScenarioList& list) {
    QStringList names;
    for (int r = 0; r < list.shownRows(); ++r) {
        const QString name = list.name(list.firstShown() + r);
        names << (r == list.indexShow() ? '[' + name + ']' : name);
    }
    return names.join(' ');
}

} // namespace

// The twenty names behind seven rows: what the rows show, which name is chosen, and how the
// list shrinks.
class TestScenarioList : public QObject {
    Q_OBJECT
private slots:
    void sequences_data() {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("rows"); // top down, the highlighted one in brackets
        QTest::addColumn<int>("numOfList");
        const auto row = [](const char* name, const char* steps, const char* rows, int num) {
            QTest::newRow(name) << QString(steps) << QString(rows) << num;
        };
        row("down moves the bar", "D*6", "0 1 2 3 4 5 [6]", 20);
        row("down from the last row scrolls", "D*7", "1 2 3 4 5 6 [7]", 20);
        row("down stops at the last name", "D*25", "13 14 15 16 17 18 [19]", 20);
        row("up stops at the first name", "U*3 D", "0 [1] 2 3 4 5 6", 20);
        row("up from the top row scrolls back", "D*8 U*7", "[1] 2 3 4 5 6 7", 20);
        row("a row keeps the first shown name", "D*11 3", "5 6 7 [8] 9 10 11", 20);
        row("removal moves the next name up", "D*2 X", "0 1 [3] 4 5 6 7", 19);
        row("removal at the end keeps the rows in the list", "D*19 X", "12 13 14 15 16 17 [18]", 19);
        row("six names hide the last row", "X*14", "[14] 15 16 17 18 19", 6);
        row("a short list stops at its last name", "X*14 D*9", "14 15 16 17 18 [19]", 6);
        row("removing the last of a short list", "X*14 D*5 X", "14 15 16 17 [18]", 5);
        row("one name left", "D*19 X*19", "[0]", 1);
        row("the last name gone closes the list, which then ignores everything", "D*19 X*20 U D 0 X", "", 0);
    }
    void sequences() {
        QFETCH(QString, steps);
        QFETCH(QString, rows);
        QFETCH(int, numOfList);
        ScenarioList list;
        list.ModifyAction();
        Run(list, steps);
        QCOMPARE(Rows(list), rows);
        QCOMPARE(list.numOfList(), numOfList);
        QCOMPARE(list.canModify(), numOfList > 0);
        QCOMPARE(list.page(), numOfList > 0 ? ScenarioList::Page::List : ScenarioList::Page::Choice);
        if (numOfList > 0)
            QCOMPARE(list.name(list.firstShown() + list.indexShow()), list.name(list.indexChoose()));
    }

    // "Create" takes any name of at least one character, listed already or not.
    void createNeedsAName() {
        ScenarioList list;
        for (const char* name : {" ", "3", ""}) {
            list.NameChanged(name);
            QCOMPARE(list.bCreateEnabled(), *name != 0);
        }
    }
};

QTEST_GUILESS_MAIN(TestScenarioList)
#include "tst_scenariolist.moc"
