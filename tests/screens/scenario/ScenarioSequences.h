#pragma once

// Sequences of list operations on the twenty names "0" to "19" and what the rows show after
// them; run on the list alone and through the real screen's buttons.

#include <QList>
#include <QStringList>
#include <QTest>

struct ListStep {
    enum Kind { Up, Down, Remove, Row } kind;
    int row = -1;
};

// "D*6 U 3 X*2": Down six times, Up, choose row 3, remove twice.
inline QList<ListStep> ParseSteps(const QString& text) {
    QList<ListStep> steps;
    for (const QString& token : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QStringList parts = token.split(QLatin1Char('*'));
        const int times = parts.size() > 1 ? parts[1].toInt() : 1;
        const QChar op = parts[0].at(0);
        ListStep step{ListStep::Row};
        if (op == QLatin1Char('U'))
            step.kind = ListStep::Up;
        else if (op == QLatin1Char('D'))
            step.kind = ListStep::Down;
        else if (op == QLatin1Char('X'))
            step.kind = ListStep::Remove;
        else
            step.row = op.digitValue();
        for (int i = 0; i < times; ++i) steps << step;
    }
    return steps;
}

inline QStringList Names(int first, int last) {
    QStringList names;
    for (int i = first; i <= last; ++i) names << QString::number(i);
    return names;
}

// Columns: steps, captions of the rows on view (top down), highlighted row, indexChoose,
// indexShow, numOfList, whether the list is still on view.
inline void AddListSequenceColumns() {
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<int>("highlight");
    QTest::addColumn<int>("indexChoose");
    QTest::addColumn<int>("indexShow");
    QTest::addColumn<int>("numOfList");
    QTest::addColumn<bool>("listShown");
}

inline void AddListSequenceRows() {
    const QStringList first7 = Names(0, 6);
    QTest::newRow("untouched") << "" << first7 << 0 << 0 << 0 << 20 << true;
    QTest::newRow("down six moves the bar only") << "D*6" << first7 << 6 << 6 << 6 << 20 << true;
    QTest::newRow("seventh down scrolls") << "D*7" << Names(1, 7) << 6 << 7 << 6 << 20 << true;
    QTest::newRow("down to the last name") << "D*19" << Names(13, 19) << 6 << 19 << 6 << 20 << true;
    QTest::newRow("down past the last name") << "D*25" << Names(13, 19) << 6 << 19 << 6 << 20 << true;
    QTest::newRow("up at the top") << "U" << first7 << 0 << 0 << 0 << 20 << true;
    QTest::newRow("up at the top, then down") << "U*3 D" << first7 << 1 << 1 << 1 << 20 << true;
    QTest::newRow("row 3 of 5 to 11") << "D*11 3" << Names(5, 11) << 3 << 8 << 3 << 20 << true;
    QTest::newRow("row 0 after scrolling") << "D*9 0" << Names(3, 9) << 0 << 3 << 0 << 20 << true;
    QTest::newRow("up to row 0 rewrites unchanged") << "D*7 U*6" << Names(1, 7) << 0 << 1 << 0 << 20 << true;
    QTest::newRow("up from row 0 scrolls back") << "D*7 U*7" << first7 << 0 << 0 << 0 << 20 << true;
    QTest::newRow("remove the first") << "X" << Names(1, 7) << 0 << 0 << 0 << 19 << true;
    QTest::newRow("remove 2") << "D*2 X" << QStringList{"0", "1", "3", "4", "5", "6", "7"} << 2 << 2 << 2
                              << 19 << true;
    QTest::newRow("remove in scrolled rows, then up")
        << "D*9 2 X U*3" << QStringList{"2", "3", "4", "6", "7", "8", "9"} << 0 << 2 << 0 << 19 << true;
    // Rows showing the end of the list: the first shown name moves up, no row shows a vacated slot.
    QTest::newRow("remove the last from the end") << "D*19 X" << Names(12, 18) << 6 << 18 << 6 << 19 << true;
    QTest::newRow("remove inside the end")
        << "D*19 U*4 X" << QStringList{"12", "13", "14", "16", "17", "18", "19"} << 3 << 15 << 3 << 19
        << true;
    QTest::newRow("remove at the end, then down")
        << "D*19 X D" << Names(12, 18) << 6 << 18 << 6 << 19 << true;
    QTest::newRow("remove twice at the end") << "D*19 X*2" << Names(11, 17) << 6 << 17 << 6 << 18 << true;
    QTest::newRow("remove down to seven") << "X*13" << Names(13, 19) << 0 << 0 << 0 << 7 << true;
    QTest::newRow("six left: row 6 hides") << "X*14" << Names(14, 19) << 0 << 0 << 0 << 6 << true;
    QTest::newRow("short list: down stops at the last")
        << "X*14 D*9" << Names(14, 19) << 5 << 5 << 5 << 6 << true;
    QTest::newRow("short list: up") << "X*14 D*3 U" << Names(14, 19) << 2 << 2 << 2 << 6 << true;
    QTest::newRow("short list: remove the last") << "X*14 D*5 X" << Names(14, 18) << 4 << 4 << 4 << 5 << true;
    QTest::newRow("short list: remove inside")
        << "X*14 D*2 X" << QStringList{"14", "15", "17", "18", "19"} << 2 << 2 << 2 << 5 << true;
    QTest::newRow("short list: choose a row") << "X*16 3" << Names(16, 19) << 3 << 3 << 3 << 4 << true;
    QTest::newRow("short list: remove the last twice")
        << "X*15 D*4 X*2" << Names(15, 17) << 2 << 2 << 2 << 3 << true;
    QTest::newRow("one left") << "X*19" << QStringList{"19"} << 0 << 0 << 0 << 1 << true;
    QTest::newRow("emptied from the top") << "X*20" << QStringList{"19"} << 0 << 0 << 0 << 0 << false;
    QTest::newRow("emptied from the bottom") << "D*19 X*20" << QStringList{"0"} << 0 << 0 << 0 << 0 << false;
}
