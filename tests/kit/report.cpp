#include "kit/report.h"

#include "kit/test_output.h"

#include <stdexcept>

namespace tarnwell::kit {

namespace {

/// Of a program that failed and told no test that did.
constexpr int kLastLines = 40;

QStringList figures(const TestOutput& output) {
    QStringList result;
    for (const auto& [count, what] :
         {std::pair{output.passed, "passed"}, {output.failed, "failed"}, {output.skipped, "skipped"}}) {
        if (count > 0)
            result += QString("%1 %2").arg(count).arg(what);
    }
    return result;
}

} // namespace

QString Report::add(const ListedTest& test, const TestRun& run) {
    const TestOutput output = read(run.output);
    const bool passed = run.trouble.isEmpty();
    ++programs_;
    passed_ += passed ? 1 : 0;
    seconds_ += run.seconds;
    const QStringList facts = figures(output) + (passed ? QStringList() : QStringList(run.trouble));
    QString line = QString("%1 %2 s  %3  %4")
                       .arg(passed ? "passed" : "FAILED")
                       .arg(run.seconds, 6, 'f', 1)
                       .arg(test.program, -18)
                       .arg(facts.join(", "));
    summary_ += line;
    QStringList details = output.noteworthy;
    if (!passed && output.failed == 0)
        details += run.output.mid(run.output.size() - kLastLines);
    if (!details.isEmpty())
        details_ += QStringList({"", "== " + test.program}) + details;
    return line;
}

QString Report::result() const {
    return QString("%1 of %2 programs passed, %3 s.").arg(passed_).arg(programs_).arg(seconds_, 0, 'f', 0);
}

void Report::save(const QString& file) const {
    QFile opened(file);
    const QString text = (summary_ + QStringList({"", result()}) + details_).join('\n') + '\n';
    if (!opened.open(QFile::WriteOnly | QFile::Text) || opened.write(text.toUtf8()) < 0)
        throw std::runtime_error(file.toStdString() + " cannot be written");
}

} // namespace tarnwell::kit
