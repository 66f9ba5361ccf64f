#include "support/fake_ports.h"

#include <cmath>
#include <limits>
#include <stdexcept>

namespace tarnwell::test {

namespace {

constexpr int kSecondsADay = 24 * 60 * 60;
constexpr int kPatience = 1'000'000;

template <class Answer>
std::optional<Answer> take(std::deque<std::optional<Answer>>& answers) {
    std::optional<Answer> answer;
    if (!answers.empty()) {
        answer = std::move(answers.front());
        answers.pop_front();
    }
    return answer;
}

/// The program's own end of a child.
class ChildHandle : public ChildProcess {
public:
    ChildHandle(const FakeClock& clock, std::shared_ptr<FakeChild> child)
        : clock_(clock), child_(std::move(child)) {}

    bool running() override { return child_->runningAt(clock_.now); }

    QByteArray read(qsizetype maximum) override {
        collect();
        QByteArray taken = waiting_.left(maximum);
        waiting_.remove(0, taken.size());
        return taken;
    }

    qint64 write(const QByteArray& bytes) override {
        if (!running())
            return -1;
        child_->written += bytes;
        return bytes.size();
    }

    qint64 processId() const override { return child_->processId; }

    bool interrupt() override {
        ++child_->interrupts;
        ChildScript& script = child_->script;
        if (!script.hearsInterrupt)
            return false;
        if (!running() || !script.heedsInterrupt)
            return true;
        collect();
        script.output = {{script.farewell, elapsed()}};
        collected_ = 0;
        // Even without a delay it lives through this moment, so that it is seen to be ending.
        script.endsAtMs = elapsed() + qMax(1, script.farewellTakesMs);
        return true;
    }

    void endByForce() override {
        child_->endedByForce = true;
        child_->script.endsAtMs = qMin(child_->script.endsAtMs, elapsed());
    }

private:
    int elapsed() const { return static_cast<int>(clock_.now - child_->startedAt); }

    void collect() {
        const auto& output = child_->script.output;
        while (collected_ < output.size() && output[collected_].atMs <= elapsed())
            waiting_ += output[collected_++].bytes;
    }

    const FakeClock& clock_;
    std::shared_ptr<FakeChild> child_;
    std::size_t collected_ = 0;
    QByteArray waiting_;
};

} // namespace

double FakeClock::secondsSinceMidnight() const {
    return std::fmod(secondsAtZero + static_cast<double>(now) / 1000, kSecondsADay);
}

void FakeEventPump::after(int milliseconds, std::function<void()> event) {
    events_.emplace(clock_.now + milliseconds, std::move(event));
}

void FakeEventPump::pump() {
    countCall();
    serveUntil(clock_.now, false);
    throwIfEnded();
}

void FakeEventPump::pumpFor(int milliseconds) {
    countCall();
    serveUntil(clock_.now + milliseconds, false);
    throwIfEnded();
}

void FakeEventPump::waitForEvent(int milliseconds) {
    countCall();
    serveUntil(clock_.now + milliseconds, true);
    throwIfEnded();
}

void FakeEventPump::end() {
    if (!ended_ && whenEnded)
        whenEnded();
    ended_ = true;
}

void FakeEventPump::throwIfEnded() const {
    if (ended_)
        throw ProgramEnded();
}

void FakeEventPump::countCall() {
    throwIfEnded();
    if (++pumps > kPatience)
        throw std::runtime_error("The program waits for something that never comes.");
    if (whileWaiting)
        whileWaiting();
    throwIfEnded();
}

/// Serves what falls due until then, in the order of time; an event can wait itself, and so move the clock
/// on.
void FakeEventPump::serveUntil(qint64 time, bool onlyOne) {
    while (!events_.empty() && events_.begin()->first <= time) {
        auto next = events_.extract(events_.begin());
        clock_.now = qMax(clock_.now, next.key());
        next.mapped()();
        if (onlyOne || ended_)
            return;
    }
    clock_.now = qMax(clock_.now, time);
}

QStringList FakeProcessLauncher::commandLines() const {
    QStringList lines;
    for (const auto& child : children)
        lines.append(child->commandLine);
    return lines;
}

std::unique_ptr<ChildProcess> FakeProcessLauncher::start(const QString& commandLine, QString& reason) {
    constexpr qint64 kFirstProcessId = 4000;
    const std::optional<ChildScript> found = script(commandLine);
    if (!found) {
        reason = whyNot;
        return nullptr;
    }
    journal_ += "run " + commandLine;
    children.push_back(std::make_shared<FakeChild>(
        FakeChild{.commandLine = commandLine,
                  .processId = kFirstProcessId + static_cast<qint64>(children.size()),
                  .script = *found,
                  .startedAt = clock_.now}));
    return std::make_unique<ChildHandle>(clock_, children.back());
}

ChildScript FakeProcessLauncher::answerTo(const QString& commandLine) const {
    for (const auto& [part, answer] : answers_) {
        if (commandLine.contains(part))
            return answer;
    }
    return {};
}

bool FakeProcesses::requestClose(qint64 processId) {
    closeRequests.push_back(processId);
    return canBeClosed;
}

bool FakeProcesses::exists(qint64 processId) const {
    for (const auto& child : launcher_.children) {
        if (child->processId == processId)
            return child->runningAt(clock_.now);
    }
    return false;
}

QStringList FakeDialogs::messageTexts() const {
    QStringList texts;
    for (const Message& message : messages)
        texts.append(message.text);
    return texts;
}

void FakeDialogs::message(const QString& text, MessageIcon icon, const QString& title) {
    messages.push_back({text, icon, title});
    waitForUser();
}

bool FakeDialogs::question(const QString& text, const QString& title, MessageIcon icon) {
    questions.append(text);
    lastQuestion = {text, icon, title};
    waitForUser();
    return questionAnswer;
}

std::optional<QString> FakeDialogs::input(const QString& prompt, const QString& title, const QString& text) {
    inputs.push_back({prompt, title, text});
    waitForUser();
    return take(inputAnswers);
}

std::optional<QString> FakeDialogs::openFile(const OpenFileRequest& request) {
    openFileRequests.push_back(request);
    waitForUser();
    return take(openFileAnswers);
}

std::optional<QString> FakeDialogs::saveFile(const SaveFileRequest& request) {
    saveFileRequests.push_back(request);
    waitForUser();
    return take(saveFileAnswers);
}

std::optional<QString> FakeDialogs::chooseFolder(const ChooseFolderRequest& request) {
    chooseFolderRequests.push_back(request);
    waitForUser();
    return take(chooseFolderAnswers);
}

std::optional<ui::Font> FakeDialogs::chooseFont(const ui::Font& current) {
    chooseFontRequests.push_back(current);
    waitForUser();
    return take(chooseFontAnswers);
}

std::optional<std::int32_t> FakeDialogs::chooseColor(std::int32_t current) {
    chooseColorRequests.push_back(current);
    waitForUser();
    return take(chooseColorAnswers);
}

std::unique_ptr<ProgressBox> FakeDialogs::progress(const QString& title, std::function<void()> cancel) {
    class Box : public ProgressBox {
    public:
        Box(FakeDialogs& dialogs, QString title) : dialogs_(dialogs), title_(std::move(title)) {}
        ~Box() override { dialogs_.cancelProgress = nullptr; }
        Box(const Box&) = delete;
        Box& operator=(const Box&) = delete;
        void show(const QString& text, int done, int steps) override {
            dialogs_.progressSteps.push_back({title_, text, done, steps});
        }

    private:
        FakeDialogs& dialogs_;
        const QString title_;
    };
    cancelProgress = std::move(cancel);
    return std::make_unique<Box>(*this, title);
}

void FakeDialogs::waitForUser() const {
    if (whileOpen)
        whileOpen();
    pump_.throwIfEnded();
}

void FakeTray::add(const QString& firstTip) {
    shown = true;
    tips.append(firstTip);
}

void FakeTray::setTip(const QString& newTip) {
    tips.append(newTip);
    journal_ += "tip " + newTip.section("\r\n", 0, 0);
}

void FakeTray::showBalloon(const QString& title, const QString& text) {
    balloons.push_back({title, text});
    journal_ += "balloon " + text;
}

void FakePower::shutDown() {
    ++shutDowns;
    journal_ += "shut down";
}

void FakePower::standBy() {
    ++standBys;
    journal_ += "stand by";
}

Ping::Reply FakePing::sendEcho(quint32 address, const QByteArray& payload, int timeoutMs) {
    echoes.push_back({address, payload, timeoutMs});
    const auto known = replies.find(address);
    return known == replies.end() ? reply : known->second;
}

bool FakeHttpListener::listen(quint16 wanted) {
    journal_ += "listen";
    if (portIsFree)
        port = wanted;
    return portIsFree;
}

void FakeHttpListener::close() {
    port.reset();
    journal_ += "close";
}

void FakeHttpListener::request(const QByteArray& bytes) const {
    if (port && received)
        received(bytes);
}

void FakeWakeLock::hold(const QString& reason) {
    held = true;
    reasons.append(reason);
}

void FakeDesktopSession::holdUp(const QString& reason) {
    heldUp = true;
    reasons.append(reason);
}

} // namespace tarnwell::test
