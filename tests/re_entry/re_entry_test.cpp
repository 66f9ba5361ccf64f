#include "re_entry/workflows.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>

namespace tarnwell::test {
namespace {

/// Enough to be of use, few enough for every run of the tests. For a long hunt set TARNWELL_ORDERS, and
/// TARNWELL_SEED to begin elsewhere or to see one order again.
#if defined(__SANITIZE_ADDRESS__)
constexpr int kUsualOrders = 600; // ten to twenty times slower
#else
constexpr int kUsualOrders = 2500;
#endif

int fromEnvironment(const char* name, int otherwise) {
    const char* const text = std::getenv(name);
    return text ? std::atoi(text) : otherwise;
}

const Workflow& workflowOf(std::uint32_t seed) {
    return workflows()[seed % workflows().size()];
}

/// How often the program waits in this workflow if the user only watches a tool in a good mood.
int waitsOf(const Workflow& workflow) {
    Scene scene(0);
    workflow.prepare(scene);
    scene.letLoose(Scene::User::DoesAnything, {});
    scene.tool.moody = false;
    workflow.perform(scene);
    return scene.waits();
}

std::set<int> someOf(int waits, int count, Random& random) {
    // What the user does lengthens the work: some act beyond its usual end.
    std::set<int> chosen;
    while (count-- > 0)
        chosen.insert(random.below(waits + waits / 2 + 2));
    return chosen;
}

void play(std::uint32_t seed, Scene::User user) {
    const Workflow& workflow = workflowOf(seed);
    static std::map<const char*, int> usualWaits;
    if (!usualWaits.contains(workflow.name))
        usualWaits[workflow.name] = waitsOf(workflow);

    constexpr int kMostActs = 10;
    Scene scene(seed);
    workflow.prepare(scene);
    const int acts = user == Scene::User::EndsTheProgram ? 1 : 1 + scene.random.below(kMostActs);
    scene.letLoose(user, someOf(usualWaits[workflow.name], acts, scene.random));
    workflow.perform(scene);
    scene.calmDown();
    EXPECT_TRUE(scene.violations().empty())
        << "TARNWELL_ORDERS=1 TARNWELL_SEED=" << seed << ": " << workflow.name << '\n'
        << scene.story() << "=> " << testing::PrintToString(scene.violations());
}

void playOrders(Scene::User user, int orders) {
    const auto start = std::chrono::steady_clock::now();
    const int count = fromEnvironment("TARNWELL_ORDERS", orders);
    const auto first = static_cast<std::uint32_t>(fromEnvironment("TARNWELL_SEED", 1));
    for (int i = 0; i < count && !testing::Test::HasFailure(); ++i)
        play(first + static_cast<std::uint32_t>(i), user);
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    std::cout << count << " orders of events in " << seconds.count() << " s\n";
}

TEST(ReEntry, WhateverTheUserDoesWhileTheProgramWaitsItStaysUsable) {
    playOrders(Scene::User::DoesAnything, kUsualOrders);
}

TEST(ReEntry, TheProgramCanBeEndedAtEveryWait) {
    playOrders(Scene::User::EndsTheProgram, kUsualOrders / 2);
}

} // namespace
} // namespace tarnwell::test
