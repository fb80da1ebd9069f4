#pragma once

#include "LocalDates.h"
#include "Notifications.h"
#include "PlayedProgram.h"
#include "ScopedEnvironment.h"

#include <gtest/gtest.h>

namespace quillon {

/// Where and in what language a played program runs; set up ahead of it.
struct PlayedPlace {
    ScopedEnvironment zone{"TZ", "Europe/Berlin"};
    ScopedEnvironment language{"LC_ALL", "en_US.UTF-8"};
};

/// A played program on a Saturday morning.
class ControllerFixture : public testing::Test, protected PlayedPlace, protected PlayedProgram {
protected:
    ControllerFixture()
        : PlayedProgram(local(2026, 11, 21, 10))
    {
    }

    MenuBarIconState icon() const { return controller->menuBarIconState(); }
    static QString text(const QAction* action) { return action->text(); }
    const StatusMenu& menu() const { return controller->statusMenu(); }
};

} // namespace quillon
