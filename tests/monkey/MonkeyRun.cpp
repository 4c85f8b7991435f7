#include "MonkeyRun.h"

#include "AppHarness.h"
#include "AppInvariants.h"
#include "Frame_Alarm.h"
#include "Frame_Control.h"
#include "Frame_Sound.h"

#include <QTest>

#include <cstdio>

QString MonkeyResult::summary() const {
    QStringList screens, kinds;
    for (auto it = inputsOn.cbegin(); it != inputsOn.cend(); ++it)
        screens << QStringLiteral("%1 %2").arg(it.key()).arg(it.value());
    for (int k = 0; k < Monkey::KindCount; ++k)
        kinds << QStringLiteral("%1 %2").arg(QLatin1String(Monkey::KindName(Monkey::Kind(k)))).arg(sent[k]);
    QStringList lines = {QStringLiteral("monkey seed %1: %2 of %3 inputs (%4 window events), %5")
                             .arg(seed)
                             .arg(done)
                             .arg(planned)
                             .arg(events)
                             .arg(ok() ? QStringLiteral("every rule held")
                                       : QStringLiteral("rules broken after input %1").arg(failedAt)),
                         QStringLiteral("  inputs by screen: ") + screens.join(QStringLiteral(", ")),
                         QStringLiteral("  inputs by kind: ") + kinds.join(QStringLiteral(", "))};
    if (!ok()) {
        lines << QStringLiteral("  broken:") << broken << QStringLiteral("  last inputs:") << trace;
        lines << QStringLiteral("  replay: ROBOT_MONKEY_SEED=%1 ROBOT_MONKEY_INPUTS=%2")
                     .arg(seed)
                     .arg(failedAt + 1);
    }
    return lines.join(QLatin1Char('\n'));
}

MonkeyResult RunMonkey(quint64 seed, qint64 inputs, const std::function<bool(qint64 done)>& progress) {
    MonkeyResult result;
    result.seed = seed;
    result.planned = inputs;
    // Said before anything runs: a sanitizer stops the process at once, and the seed must be on
    // record when it does.
    std::fprintf(stderr, "monkey: seed %llu, %lld inputs\n", static_cast<unsigned long long>(seed),
                 static_cast<long long>(inputs));
    std::fflush(stderr);

    AppHarness app;
    Frame_Control* root = app.root();
    const AppInvariants invariants(root);
    Monkey monkey(app, seed);
    // Every event is followed by the whole check, not only every input: a drag is many events.
    monkey.setCheck([&] {
        result.broken = invariants.check();
        return result.broken.isEmpty();
    });
    auto busy = [root] {
        return root->frmSound->Timeline.Busy() || root->frmAlarm->frmDoneView->isVisible();
    };

    result.broken = invariants.check();
    if (!result.broken.isEmpty()) result.failedAt = 0;
    for (qint64 i = 0; result.ok() && i < inputs; ++i) {
        const QString screen = QString::fromLatin1(app.shownScreen()->metaObject()->className());
        ++result.inputsOn[screen];
        result.trace << QStringLiteral("%1 [%2] %3").arg(i).arg(screen, monkey.step());
        if (result.trace.size() > 40) result.trace.removeFirst();
        result.done = i + 1;
        if (monkey.failed())
            result.failedAt = i;
        else if (progress && result.done % 1000 == 0 && !progress(result.done))
            break;
    }
    result.sent = monkey.sent();
    result.events = monkey.events();
    if (result.ok()) {
        // Let the scroll and the confirmation run out; the rules must hold at rest as well.
        const bool settled =
            QTest::qWaitFor([&] { return !busy(); }, 60000); // the longest scroll takes seconds
        result.broken = invariants.check();
        if (!settled) result.broken << QStringLiteral("the scroll or the confirmation page never ended");
        if (!result.broken.isEmpty()) result.failedAt = result.done;
    }
    return result;
}

QList<quint64> MonkeySeedsFromEnvironment(const QList<quint64>& defaults) {
    bool ok = false;
    const quint64 seed = qEnvironmentVariable("ROBOT_MONKEY_SEED").toULongLong(&ok);
    return ok ? QList<quint64>{seed} : defaults;
}

qint64 MonkeyInputsFromEnvironment(qint64 fallback) {
    bool ok = false;
    const qint64 inputs = qEnvironmentVariable("ROBOT_MONKEY_INPUTS").toLongLong(&ok);
    return ok && inputs > 0 ? inputs : fallback;
}
