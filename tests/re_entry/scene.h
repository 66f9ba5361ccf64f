#pragma once

#include "app/program.h"
#include "re_entry/moody_tool.h"
#include "re_entry/possible_actions.h"
#include "support/fake_ports.h"

#include <set>
#include <string>
#include <vector>

namespace tarnwell::test {

/// A program, a moody tool and a user who acts while the program waits. Whatever must never happen is noted.
class Scene {
public:
    explicit Scene(std::uint32_t seed);

    enum class User { DoesAnything, EndsTheProgram };

    /// From now on the tool is moody, and the user acts at these waits, counted from 0.
    void letLoose(User user, const std::set<int>& waits);
    /// Nothing happens by itself any more; looks at what is left behind.
    void calmDown();

    int waits() const { return waits_; } ///< since letLoose
    bool ended() const { return ports.pump.ended(); }
    const std::vector<std::string>& violations() const { return violations_; }
    std::string story() const; ///< what the user did

    QString path(const QString& name) const { return ports.folders.folder + '/' + name; }

    Random random;
    FakePorts ports;
    MoodyTool tool{random};
    Program program{ports.ports()};
    Shared& shared = program.shared();
    ui::FrmMain& frmMain = shared.frmMain;
    ui::FrmSettings& frmSettings = shared.frmSettings.untouched();
    ui::FrmStatus& frmStatus = shared.frmStatus.untouched();

private:
    struct Effects {
        std::size_t toolRuns = 0, boxes = 0;
        int powerActions = 0;
        bool operator==(const Effects&) const = default;
    };

    std::optional<ChildScript> startTool(const QString& commandLine);
    void wait(bool boxIsOpen);
    void act(bool boxIsOpen);
    void answerBox();
    void lookAtRest();
    void lookAtOrigins();
    void lookAtReports();
    void lookAtJobs();
    void demandRightDevice(const QString& command, const QString& deviceOfRename);
    void tryOut();
    Effects effects() const;
    void demand(bool holds, const std::string& what);
    void demandControlsAsDeclared();

    PossibleActions actions_{shared, ports, random};
    User user_ = User::DoesAnything;
    std::set<int> due_;
    bool loose_ = false;
    int waits_ = 0;
    int acts_ = 0;
    std::optional<Effects> atEnd_;
    std::vector<std::string> story_;
    std::vector<std::string> violations_;
};

} // namespace tarnwell::test
