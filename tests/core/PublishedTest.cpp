#include "core/Published.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using core::Published;
using core::Registration;

TEST(Published, TellsBeforeEachAssignmentAlsoWhenNothingChanges) {
    Published<int> value(1);
    std::vector<std::pair<int, int>> seen; // what comes, what is still there
    const Registration observer =
        value.observe([&](int coming) { seen.emplace_back(coming, value.get()); });
    value = 2;
    value = 2;
    EXPECT_EQ(seen, (std::vector<std::pair<int, int>>{{2, 1}, {2, 2}}));
    EXPECT_EQ(value.get(), 2);
}

TEST(Published, ItsOwnerActsAfterEachAssignmentWithTheNewValue) {
    std::vector<std::string> events;
    Published<int> value(1, [&](int now) { events.push_back("stored " + std::to_string(now)); });
    const Registration observer =
        value.observe([&](int) { events.push_back("told at " + std::to_string(value)); });
    Published<int>& binding = value;
    binding.set(2);
    EXPECT_EQ(events, (std::vector<std::string>{"told at 1", "stored 2"}));
}

TEST(Published, ObserversMayComeAndGoWhileTheyAreTold) {
    Published<int> value(0);
    std::vector<char> calls;
    Registration late;
    Registration second;
    Registration first = value.observe([&](int) {
        calls.push_back('a');
        second.reset();
        first.reset();
        late = value.observe([&](int) { calls.push_back('c'); });
    });
    second = value.observe([&](int) { calls.push_back('b'); });
    value = 1;
    value = 2;
    EXPECT_EQ(calls, (std::vector<char>{'a', 'c'}));
}

