#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <vector>

namespace tarnwell::test {

/// A login manager that hands out locks, and can tell which of them are held.
class LoginManager : public QDBusVirtualObject {
public:
    explicit LoginManager(const QByteArray& busAddress);
    ~LoginManager() override;

    enum class Answer { AtOnce, WhenTold, Refusal };
    Answer answers = Answer::AtOnce;
    std::vector<QVariantList> requests; ///< the arguments of each

    void answerNow();
    /// Tells all programs that the machine is about to go down, or no longer is.
    void prepareForShutdown(bool begins);
    /// How many of its locks are open in other hands.
    int held() const;

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override;

private:
    void handOut(const QDBusMessage& call);

    QDBusConnection bus_;
    QDBusMessage waiting_;
    std::vector<int> locks_; ///< reading ends: one without a writer left is a lock that was let go
};

} // namespace tarnwell::test
