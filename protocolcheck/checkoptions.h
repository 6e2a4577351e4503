#pragma once

#include "mcscheckbench.h"

#include <QStringList>

namespace Scheduler::ProtocolCheck {

struct CommandLine {
    std::optional<CheckSettings> settings; ///< nothing when the process has to end at once
    QString text;                          ///< what to tell then: help, version, rules, or what is wrong
    int exitStatus = 0;
};

/// Reads the arguments, the program's name first.
[[nodiscard]] CommandLine parseCommandLine(const QStringList &arguments);

} // namespace Scheduler::ProtocolCheck
