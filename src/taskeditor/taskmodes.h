#pragma once

#include <QLatin1StringView>

/// The values of a task document that stand for a choice, as the daemon knows them. They are compared exactly; two of
/// them begin with a small letter.
namespace Scheduler::TaskModes {

// When a task starts
inline constexpr QLatin1StringView specifiedTime{"SpecifiedTime"};
inline constexpr QLatin1StringView everyDay{"EveryDay"};
inline constexpr QLatin1StringView everyWeek{"EveryWeek"};
inline constexpr QLatin1StringView monitorApp{"monitorApp"};
inline constexpr QLatin1StringView monitorFolder{"monitorFolder"};

/// No condition for the stop, and no action after it
inline constexpr QLatin1StringView none{"None"};

// When it stops
inline constexpr QLatin1StringView byDuration{"ByDuration"};
inline constexpr QLatin1StringView byFileSize{"ByFileSize"};
inline constexpr QLatin1StringView atTime{"AtTime"};

// What follows the stop
inline constexpr QLatin1StringView closeProgram{"CloseProgram"};
inline constexpr QLatin1StringView shutdownComputer{"ShutdownComputer"};

// How the program's window is shown
inline constexpr QLatin1StringView show{"Show"};
inline constexpr QLatin1StringView minimize{"Minimize"};
inline constexpr QLatin1StringView hide{"Hide"};

// Where the output goes
inline constexpr QLatin1StringView useDefaultOutput{"UseDefault"};
inline constexpr QLatin1StringView customOutput{"Custom"};

} // namespace Scheduler::TaskModes
