// What the tool prints, cut into chunks at odd places, while the program waits for anything or nothing.

#include "base/fault.h"
#include "base/shared.h"
#include "interpreter/output_interpreter.h"
#include "support/fake_ports.h"

#include <QStringDecoder>

#include <cstddef>
#include <cstdint>

using namespace tarnwell;

namespace {

/// The first bytes of the input say what the program waits for, and where the output is cut.
constexpr std::size_t kHeader = 4;
constexpr int kMostJobs = 3;

struct Header {
    explicit Header(const std::uint8_t* data) : flags(data[0]), place(data[1]), cuts{data[2], data[3]} {}
    std::uint8_t flags, place, cuts[2];
};

/// Making windows takes long; unloading one sets it back to its start.
void reset(ui::Form& form) {
    form.load();
    form.unload();
}

void setUp(Shared& shared, const Header& header) {
    const auto bit = [&](int number) { return (header.flags >> number & 1) != 0; };
    shared.blnQueryHD = bit(0);
    shared.blnQueryOptical = bit(1);
    shared.blnQuerySettings = bit(2);
    shared.blnDiscInfo = bit(3);
    shared.blnReadTOC = bit(4);
    shared.blnQueueRunning = bit(5);
    shared.blnInstallRunning = bit(6);
    shared.frmMain.optLocal.value = bit(7);
    for (int job = 0; job < header.place % (kMostJobs + 1); ++job)
        shared.frmMain.lstJob.append({"Pending", {}, {}});
    shared.intJobIndex = static_cast<qint16>(header.place / 8 % (kMostJobs + 2));
    shared.frmMain.optOptical.value = (header.place & 0x80) != 0;
    if ((header.place & 0x40) != 0)
        shared.frmStatus->windowState = ui::WindowState::Minimised;
}

void read(OutputInterpreter& interpreter, const QString& text) {
    try {
        interpreter.ParseToolOutput(text);
    } catch (const Fault&) {
        // A line that makes no sense is told to the user: that is all that may come out of it.
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < kHeader)
        return 0;
    static test::FakePorts outside;
    outside.dialogs.messages.clear();
    outside.tray.tips.clear();
    outside.pump.pumps = 0;
    static Shared shared(outside.ports());
    static OutputInterpreter interpreter(shared);
    reset(shared.frmMain);
    reset(shared.frmSettings.untouched());
    reset(shared.frmStatus.untouched());
    const Header header(data);
    setUp(shared, header);

    const QByteArray output(reinterpret_cast<const char*>(data) + kHeader,
                            static_cast<qsizetype>(size - kHeader));
    QStringDecoder decoder(QStringDecoder::System);
    qsizetype begin = 0;
    for (const qsizetype length : {qsizetype{header.cuts[0]}, qsizetype{header.cuts[1]}, output.size()}) {
        const QByteArray chunk = output.mid(begin, length);
        begin += chunk.size();
        if (!chunk.isEmpty())
            read(interpreter, decoder.decode(chunk));
    }
    read(interpreter, QString::fromLocal8Bit(output));
    return 0;
}
