#include "re_entry/moody_tool.h"

namespace tarnwell::test {

namespace {

const QByteArray kDisksAndDrives = "\thdd1:  114473MB, formatted Playstation 2 HDD\r\n"
                                   "\thdd2:  38146MB, formatted Playstation 2 HDD\r\n"
                                   "\thdd3:  38146MB, unknown format\r\n"
                                   "\tcd0:  4482 MB\r\n\tcd1:  no disc\r\n"
                                   "via SPTI:\r\n\tD: disc 4482 MB\r\n\tE: no disc: none\r\n";

const char* const kOddWords[] = {
    "inject: not enough free space.\r\n",
    "An existing connection was forcibly closed by the remote host\r\n",
    "No connection could be made because the target machine actively refused it.\r\n",
    "Interrupted.\r\n",
    "Input or output is unsupported.\r\n",
    "SPTI error: 0x12345 something\r\n",
    "total MB, used , available\r\n",
    "%\r",
    "101%, remaining MB/sec\r",
    "\r\n",
    "DVD \"\r\n",
    "\thdd\r\n\tcd MB\r\n",
};

QByteArray gamesOf(const QString& device) {
    const QByteArray startup = MoodyTool::startupOn(device).toLatin1();
    return "type   size flags          dma startup      name\r\n"
           "DVD 4193280KB                " +
           startup + "   Lantern " + startup + "\r\nCD   716800KB +1             " + startup +
           "   Copper Run " + startup + "\r\ntotal 114473MB, used 26712MB, available 87761MB\r\n";
}

QByteArray disc(const QString& source) {
    const char* const startup =
        source.endsWith(".iso\"") ? MoodyTool::kStartupInImage : MoodyTool::kStartupOnDisc;
    return QByteArray("DVD 4193280KB \"LANTERN\" \"") + startup + "\"\r\n";
}

} // namespace

QString MoodyTool::startupOn(const QString& device) {
    const size_t number = qHash(device) % 1'000'000;
    return QString("%1_%2").arg(device.endsWith(':') ? "HDD" : "NET").arg(number, 7, 10, QChar('0'));
}

std::optional<ChildScript> MoodyTool::answerTo(const QString& command) {
    constexpr int kMoods = 3;
    ChildScript script = wellBehaved(command);
    if (moody && random_.oneIn(kMoods)) {
        if (random_.oneIn(20))
            return std::nullopt; // it cannot even be started
        spoil(script);
    }
    return script;
}

ChildScript MoodyTool::wellBehaved(const QString& command) {
    const auto begins = [&](const char* word) { return command.startsWith(QLatin1String(word)); };
    if (begins("query"))
        return {.output = {{kDisksAndDrives}}, .endsAtMs = 40};
    if (begins("tarn_toc ")) {
        const QByteArray games = gamesOf(command.mid(command.indexOf(' ') + 1));
        return {.output = {{games.left(100)}, {games.mid(100), 35}}, .endsAtMs = 70};
    }
    if (begins("cdvd_info2"))
        return {.output = {{disc(command), 30}}, .endsAtMs = 40};
    if (begins("inject") || begins("extract") || begins("dump"))
        return {.output = {{"1%, 12 min remaining, 3.50 MB/sec\r", 10},
                           {"50%, 6 min remaining, 4.00 MB/sec\r", 50},
                           {"100%, 0 sec remaining, 4.00 MB/sec\r", 100}},
                .endsAtMs = 130};
    return {.endsAtMs = 40};
}

void MoodyTool::spoil(ChildScript& script) {
    switch (random_.below(6)) {
    case 0: // silent
        script.output.clear();
        break;
    case 1:
        script.output.push_back({random_.of(kOddWords), random_.below(script.endsAtMs)});
        break;
    case 2: // dies
        if (!script.output.empty())
            script.output.resize(
                static_cast<std::size_t>(random_.below(static_cast<int>(script.output.size()))));
        script.output.push_back({random_.of(kOddWords), script.endsAtMs});
        break;
    case 3: // slow
        script.endsAtMs += 500;
        break;
    case 4:
        script.endsAtMs += 500;
        script.heedsInterrupt = false;
        break;
    default:
        script.farewellTakesMs = 200;
        script.endsAtMs += 500;
        break;
    }
}

} // namespace tarnwell::test
