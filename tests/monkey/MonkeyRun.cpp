#include "MonkeyRun.h"

#include "AppHarness.h"
#include "AppInvariants.h"
#include "Frame_Alarm.h"
#include "Frame_Control.h"
#include "Frame_Face.h"
#include "Frame_Lazer.h"
#include "Frame_MainMenu.h"
#include "Frame_MoveMent.h"
#include "Frame_Scenario.h"
#include "Frame_Sound.h"

#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <deque>

namespace {

constexpr int kTraceLength = 40;
constexpr int kSettleMs = 60000; // the longest scroll, 42 pages, takes under five seconds

QString ScreenName(const Frame_Control* root, const QWidget* screen) {
    if (!screen) return QStringLiteral("(none)");
    if (screen == root->frmMainMenu) return QStringLiteral("main menu");
    if (screen == root->frmScenario) return QStringLiteral("scenario");
    if (screen == root->frmAlarm) return QStringLiteral("alarm");
    if (screen == root->frmMovement) return QStringLiteral("movement");
    if (screen == root->frmSound) return QStringLiteral("sound");
    if (screen == root->frmFace) return QStringLiteral("face");
    if (screen == root->frmLazer) return QStringLiteral("laser");
    return QStringLiteral("?");
}

bool Confirming(const Frame_Control* root) {
    return root->frmAlarm->frmDoneView && !root->frmAlarm->frmDoneView->isHidden();
}

bool Scrolling(const Frame_Control* root) {
    return root->frmSound->Timeline.timer != nullptr;
}

} // namespace

QString MonkeyResult::summary() const {
    QStringList lines;
    lines << QStringLiteral("monkey seed %1: %2 of %3 inputs (%4 window events), %5")
                 .arg(seed)
                 .arg(done)
                 .arg(planned)
                 .arg(events)
                 .arg(ok() ? QStringLiteral("every rule held")
                           : QStringLiteral("rules broken after input %1").arg(failedAt));
    QStringList screens;
    for (auto it = inputsOn.cbegin(); it != inputsOn.cend(); ++it)
        screens << QStringLiteral("%1 %2").arg(it.key()).arg(it.value());
    lines << QStringLiteral("  inputs by screen: %1; %2 screen changes")
                 .arg(screens.join(QStringLiteral(", ")))
                 .arg(screenChanges);
    QStringList kinds;
    for (int k = 0; k < Monkey::KindCount; ++k)
        kinds << QStringLiteral("%1 %2")
                     .arg(QLatin1String(Monkey::KindName(static_cast<Monkey::Kind>(k))))
                     .arg(sent[k]);
    lines << QStringLiteral("  inputs by kind: %1").arg(kinds.join(QStringLiteral(", ")));
    lines << QStringLiteral(
                 "  confirmations %1, inputs during scrolls %2, most path pieces %3, most timeline "
                 "items %4, fewest list names %5, longest name %6")
                 .arg(confirmations)
                 .arg(scrollsSeen)
                 .arg(mostPathPieces)
                 .arg(mostTimelineItems)
                 .arg(fewestListNames)
                 .arg(longestName);
    if (!ok()) {
        lines << QStringLiteral("  broken:");
        for (const QString& b : broken) lines << QStringLiteral("    ") + b;
        lines << QStringLiteral("  last inputs:");
        for (const QString& t : trace) lines << QStringLiteral("    ") + t;
        lines << QStringLiteral("  replay: ROBOT_MONKEY_SEED=%1 ROBOT_MONKEY_INPUTS=%2")
                     .arg(seed)
                     .arg(failedAt + 1);
    }
    return lines.join(QLatin1Char('\n'));
}

MonkeyResult RunMonkey(quint64 seed, qint64 inputs, const MonkeyProgress& progress) {
    MonkeyResult result;
    result.seed = seed;
    result.planned = inputs;
    // Said before anything runs: a sanitizer stops the process at once, and the seed must be on
    // record when it does.
    std::fprintf(stderr, "monkey: seed %llu, %lld inputs (replay: ROBOT_MONKEY_SEED=%llu)\n",
                 static_cast<unsigned long long>(seed), static_cast<long long>(inputs),
                 static_cast<unsigned long long>(seed));
    std::fflush(stderr);

    AppHarness app;
    Frame_Control* root = app.root();
    const AppInvariants invariants(root);
    Monkey monkey(app, seed);
    QStringList brokenNow;
    // Every event is followed by the whole check, not only every input: a drag is many events.
    monkey.setCheck([&] {
        brokenNow = invariants.check();
        return brokenNow.isEmpty();
    });
    std::deque<QString> trace;

    auto fail = [&](qint64 at, const QStringList& broken) {
        result.failedAt = at;
        result.broken = broken;
        result.trace = QStringList(trace.begin(), trace.end());
    };

    result.broken = invariants.check();
    if (!result.broken.isEmpty()) {
        fail(0, result.broken);
        return result;
    }

    QWidget* lastScreen = app.shownScreen();
    bool wasConfirming = false;
    for (qint64 i = 0; i < inputs; ++i) {
        const QString screen = ScreenName(root, app.shownScreen());
        result.inputsOn[screen] += 1;
        if (Scrolling(root)) ++result.scrollsSeen;

        const QString what = monkey.step();
        trace.push_back(QStringLiteral("%1 [%2] %3").arg(i).arg(screen, what));
        if (trace.size() > kTraceLength) trace.pop_front();
        result.done = i + 1;

        if (monkey.failed()) {
            fail(i, brokenNow);
            break;
        }

        QWidget* shown = app.shownScreen();
        if (shown != lastScreen) ++result.screenChanges;
        lastScreen = shown;
        const bool confirming = Confirming(root);
        if (confirming && !wasConfirming) ++result.confirmations;
        wasConfirming = confirming;
        result.mostPathPieces = qMax(result.mostPathPieces, root->frmMovement->PathInfo.iItemCnt);
        result.mostTimelineItems = qMax(result.mostTimelineItems, root->frmSound->Timeline.iItemNum);
        result.fewestListNames = qMin(result.fewestListNames, root->frmScenario->numOfList);
        result.longestName =
            qMax(result.longestName, static_cast<int>(root->frmScenario->txtScenarioName->text().size()));

        if (progress && (i + 1) % 1000 == 0 && !progress(i + 1)) break;
    }
    result.sent = monkey.sent();
    result.events = monkey.events();

    if (result.ok()) {
        // Let the scroll and the confirmation run out; the rules must hold at rest as well.
        const bool settled =
            QTest::qWaitFor([root] { return !Scrolling(root) && !Confirming(root); }, kSettleMs);
        QStringList broken = invariants.check();
        if (!settled) broken << QStringLiteral("the scroll or the confirmation page never ended");
        if (!broken.isEmpty()) fail(result.done, broken);
    }
    return result;
}

QList<quint64> MonkeySeedsFromEnvironment(const QList<quint64>& defaults) {
    const QByteArray text = qgetenv("ROBOT_MONKEY_SEED");
    if (text.isEmpty()) return defaults;
    QList<quint64> seeds;
    for (const QByteArray& part : text.split(',')) {
        bool ok = false;
        const quint64 seed = part.trimmed().toULongLong(&ok);
        if (ok) seeds << seed;
    }
    return seeds.isEmpty() ? defaults : seeds;
}

qint64 MonkeyInputsFromEnvironment(qint64 fallback) {
    bool ok = false;
    const qint64 inputs = qEnvironmentVariable("ROBOT_MONKEY_INPUTS").toLongLong(&ok);
    return ok && inputs > 0 ? inputs : fallback;
}
