#include "Frame_Control.h"
#include "Frame_Face.h"
#include "MonkeyRun.h"
#include "NSApplicationMain.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <cstdio>

// Bounded for the test run: a few seeds long enough to reach every screen, fill part of the
// timeline and pass through the confirmation page. scripts/monkey-long.sh runs the long one.
class TestMonkey : public QObject {
    Q_OBJECT
private slots:
    void rulesHoldUnderRandomInput_data() {
        QTest::addColumn<quint64>("seed");
        for (quint64 seed : MonkeySeedsFromEnvironment({1, 2, 3}))
            QTest::newRow(qPrintable(QStringLiteral("seed %1").arg(seed))) << seed;
    }

    void rulesHoldUnderRandomInput() {
        QFETCH(quint64, seed);
        const MonkeyResult result = RunMonkey(seed, MonkeyInputsFromEnvironment(1500));
        std::fprintf(stderr, "%s\n", qPrintable(result.summary()));
        QVERIFY2(result.ok(), qPrintable(result.summary()));
        QCOMPARE(result.done, result.planned);
        // A run that never leaves the main menu proves nothing about the other screens.
        QVERIFY2(result.inputsOn.size() >= 2, "the monkey stayed on one screen");
    }

    // A rule broken in the middle of a run stops it at once and says how to replay it.
    void aBrokenRuleStopsTheRunAndNamesTheSeed() {
        QTimer::singleShot(500, [] {
            for (QWidget* w : QApplication::topLevelWidgets())
                if (Frame_Control* root = RootView(w)) root->frmFace->setHidden(false);
        });
        const MonkeyResult result = RunMonkey(11, 100000);
        QVERIFY(result.failedAt >= 0 && result.done < result.planned);
        QVERIFY(result.broken.join(QLatin1Char(' ')).contains(QLatin1String("2 screens shown")));
        QVERIFY(result.summary().contains(
            QStringLiteral("ROBOT_MONKEY_SEED=11 ROBOT_MONKEY_INPUTS=%1").arg(result.failedAt + 1)));
    }
};

QTEST_MAIN(TestMonkey)
#include "tst_monkey.moc"
