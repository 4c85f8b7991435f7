#include "ScenarioList.h"
#include "ScenarioSequences.h"

#include <QTest>

namespace {

// What the seven rows would show, changed only as the list's answers say.
struct Rows {
    QString caption[ScenarioList::kRows];
    bool bar[ScenarioList::kRows] = {};
    bool hidden[ScenarioList::kRows] = {};
    bool listHidden = false;

    explicit Rows(const ScenarioList& list) {
        for (int r = 0; r < ScenarioList::kRows; ++r) caption[r] = list.name(r);
        bar[0] = true;
    }

    void apply(const ScenarioList::RowChange& change, const ScenarioList& list) {
        if (change.listEmptied) {
            listHidden = true;
            return;
        }
        if (change.hideRow >= 0) {
            QVERIFY(change.hideRow < ScenarioList::kRows);
            hidden[change.hideRow] = true;
        }
        if (change.markRow >= 0)
            for (int r = 0; r < list.shownRows(); ++r) bar[r] = r == change.markRow;
        QVERIFY(change.captionFrom >= 0 && change.captionTo <= ScenarioList::kRows);
        for (int r = change.captionFrom; r < change.captionTo; ++r) {
            // A row never shows a slot beyond the end of the list.
            QVERIFY2(list.firstShown() + r < list.numOfList, qPrintable(QString("row %1").arg(r)));
            caption[r] = list.name(list.firstShown() + r);
        }
    }

    QStringList shown() const {
        QStringList names;
        for (int r = 0; r < ScenarioList::kRows; ++r)
            if (!hidden[r]) names << caption[r];
        return names;
    }

    int highlighted() const {
        int found = -1;
        for (int r = 0; r < ScenarioList::kRows; ++r)
            if (!hidden[r] && bar[r]) {
                if (found >= 0) return -2; // two bars
                found = r;
            }
        return found;
    }
};

ScenarioList::RowChange Run(ScenarioList& list, const ListStep& step) {
    switch (step.kind) {
    case ListStep::Up:
        return list.Up();
    case ListStep::Down:
        return list.Down();
    case ListStep::Remove:
        return list.Remove();
    case ListStep::Row:
        break;
    }
    return list.ChooseRow(step.row);
}

ScenarioList Filled() {
    ScenarioList list;
    list.Fill();
    return list;
}

} // namespace

class TestScenarioList : public QObject {
    Q_OBJECT
private slots:
    void fillMakesTwentyNames() {
        const ScenarioList list = Filled();
        QCOMPARE(list.numOfList, 20);
        QCOMPARE(list.indexChoose, 0);
        QCOMPARE(list.indexShow, 0);
        for (int i = 0; i < ScenarioList::kSlots; ++i)
            QCOMPARE(list.txtLoadScenarioName[i], QString::number(i));
        QVERIFY(list.isConsistent());
    }

    void sequences_data() {
        AddListSequenceColumns();
        AddListSequenceRows();
    }

    void sequences() {
        QFETCH(QString, steps);
        QFETCH(QStringList, rows);
        QFETCH(int, highlight);
        QFETCH(int, indexChoose);
        QFETCH(int, indexShow);
        QFETCH(int, numOfList);
        QFETCH(bool, listShown);

        ScenarioList list = Filled();
        Rows view(list);
        for (const ListStep& step : ParseSteps(steps)) {
            if (view.listHidden) QFAIL("a step after the list was emptied");
            view.apply(Run(list, step), list);
            if (QTest::currentTestFailed()) return;
            if (list.numOfList > 0) QVERIFY(list.isConsistent());
        }
        QCOMPARE(view.shown(), rows);
        QCOMPARE(view.highlighted(), highlight);
        QCOMPARE(list.indexChoose, indexChoose);
        QCOMPARE(list.indexShow, indexShow);
        QCOMPARE(list.numOfList, numOfList);
        QCOMPARE(!view.listHidden, listShown);
        // The rows show exactly the names the model says they show.
        if (listShown)
            for (int r = 0; r < rows.size(); ++r) QCOMPARE(rows[r], list.name(list.firstShown() + r));
    }

    void answers_data() {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QChar>("op");
        QTest::addColumn<int>("markRow");
        QTest::addColumn<int>("captionFrom");
        QTest::addColumn<int>("captionTo");
        QTest::addColumn<int>("hideRow");

        QTest::newRow("down inside the rows") << "" << QChar('D') << 1 << 0 << 0 << -1;
        QTest::newRow("down scrolling") << "D*6" << QChar('D') << 6 << 0 << 7 << -1;
        QTest::newRow("down at the last name redraws nothing") << "D*19" << QChar('D') << -1 << 0 << 0 << -1;
        QTest::newRow("up at the first name redraws nothing") << "" << QChar('U') << -1 << 0 << 0 << -1;
        QTest::newRow("up inside the rows") << "D*3" << QChar('U') << 2 << 0 << 0 << -1;
        QTest::newRow("up from row 1 writes all captions") << "D" << QChar('U') << 0 << 0 << 7 << -1;
        QTest::newRow("remove rewrites from the chosen row") << "D*3" << QChar('X') << 3 << 3 << 7 << -1;
        QTest::newRow("remove at the end rewrites all rows") << "D*19" << QChar('X') << 6 << 0 << 7 << -1;
        QTest::newRow("short list: remove hides the row below") << "X*14 D" << QChar('X') << 1 << 1 << 5 << 5;
        QTest::newRow("short list: remove the last") << "X*14 D*5" << QChar('X') << 4 << 0 << 0 << 5;
        QTest::newRow("short list: down in the last row") << "X*14 D*4" << QChar('D') << 5 << 0 << 0 << -1;
    }

    void answers() {
        QFETCH(QString, before);
        QFETCH(QChar, op);
        QFETCH(int, markRow);
        QFETCH(int, captionFrom);
        QFETCH(int, captionTo);
        QFETCH(int, hideRow);

        ScenarioList list = Filled();
        for (const ListStep& step : ParseSteps(before)) Run(list, step);
        const ScenarioList::RowChange change = Run(list, ParseSteps(QString(op)).front());
        QCOMPARE(change.markRow, markRow);
        QCOMPARE(change.captionFrom < change.captionTo ? change.captionFrom : 0, captionFrom);
        QCOMPARE(change.captionFrom < change.captionTo ? change.captionTo : 0, captionTo);
        QCOMPARE(change.hideRow, hideRow);
        QVERIFY(!change.listEmptied);
    }

    void removeClosesTheGapAndLeavesTheLastSlot() {
        ScenarioList list = Filled();
        list.ChooseRow(4);
        list.Remove();
        const QStringList expected = Names(0, 3) + Names(5, 19) + QStringList{"19"};
        QStringList held;
        for (const QString& name : list.txtLoadScenarioName) held << name;
        QCOMPARE(held, expected);
        QCOMPARE(list.numOfList, 19);
    }

    void emptyListIgnoresEverything() {
        ScenarioList list = Filled();
        for (int i = 0; i < 20; ++i) list.Remove();
        QCOMPARE(list.numOfList, 0);
        QVERIFY(list.Up().isNothing());
        QVERIFY(list.Down().isNothing());
        QVERIFY(list.ChooseRow(0).isNothing());
        QVERIFY(list.Remove().isNothing());
        QCOMPARE(list.numOfList, 0);
        QCOMPARE(list.indexChoose, 0);
        QCOMPARE(list.indexShow, 0);
    }

    void rowsOutsideTheShownOnesAreIgnored_data() {
        QTest::addColumn<QString>("before");
        QTest::addColumn<int>("row");
        QTest::newRow("negative") << "" << -1;
        QTest::newRow("past the seventh") << "" << 7;
        QTest::newRow("hidden row of a short list") << "X*16" << 4;
    }

    void rowsOutsideTheShownOnesAreIgnored() {
        QFETCH(QString, before);
        QFETCH(int, row);
        ScenarioList list = Filled();
        for (const ListStep& step : ParseSteps(before)) Run(list, step);
        const ScenarioList expected = list;
        QVERIFY(list.ChooseRow(row).isNothing());
        QCOMPARE(list.indexChoose, expected.indexChoose);
        QCOMPARE(list.indexShow, expected.indexShow);
    }

    // Anybody may write the public fields; a model that makes no sense changes nothing and
    // never reaches outside the twenty slots.
    void inconsistentModelIsLeftAlone_data() {
        QTest::addColumn<int>("indexChoose");
        QTest::addColumn<int>("indexShow");
        QTest::addColumn<int>("numOfList");
        QTest::newRow("chosen past the end") << 25 << 3 << 20;
        QTest::newRow("chosen before the start") << -4 << 0 << 20;
        QTest::newRow("row past the rows") << 9 << 8 << 20;
        QTest::newRow("rows past the end") << 19 << 0 << 20;
        QTest::newRow("count past the slots") << 0 << 0 << 30;
        QTest::newRow("negative count") << 0 << 0 << -3;
        QTest::newRow("row past a short list") << 2 << 4 << 5;
    }

    void inconsistentModelIsLeftAlone() {
        QFETCH(int, indexChoose);
        QFETCH(int, indexShow);
        QFETCH(int, numOfList);
        for (char op : {'U', 'D', 'X', '0'}) {
            ScenarioList list = Filled();
            list.indexChoose = indexChoose;
            list.indexShow = indexShow;
            list.numOfList = numOfList;
            QVERIFY(!list.isConsistent());
            QVERIFY(Run(list, ParseSteps(QString(QChar(op))).front()).isNothing());
            QCOMPARE(list.indexChoose, indexChoose);
            QCOMPARE(list.indexShow, indexShow);
            QCOMPARE(list.numOfList, numOfList);
            QCOMPARE(list.txtLoadScenarioName[0], QStringLiteral("0"));
        }
    }

    void nameOutsideTheSlotsIsNull() {
        const ScenarioList list = Filled();
        QVERIFY(list.name(-1).isNull());
        QVERIFY(list.name(20).isNull());
        QCOMPARE(list.name(19), QStringLiteral("19"));
    }
};

QTEST_MAIN(TestScenarioList)
#include "tst_scenariolist.moc"
