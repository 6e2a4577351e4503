#pragma once

#include "mcscheckbench.h"

namespace Scheduler::ProtocolCheck {

enum ExitStatus { AllHold = 0, NotAllHold = 1, NotChecked = 2, Interrupted = 130 };

/// Tries every rule on the daemon at the endpoint and reports each. It changes nothing there but tasks and groups of
/// its own, and removes those, whatever comes.
class MCsProtocolCheck {
public:
    using Output = std::function<void(const QString &line)>;

    /// The report goes to the first output, and what keeps it from being made, or from being tidy, to the second.
    MCsProtocolCheck(const CheckSettings &settings, const Output &report, const Output &complain);

    [[nodiscard]] ExitStatus run();

private:
    [[nodiscard]] bool start();
    void tryRule(const Rule &rule);
    void report(const Rule &rule, const Outcome &outcome);
    void reportCounts();
    [[nodiscard]] bool removeAll();

    CheckSettings m_settings;
    Output m_report;
    Output m_complain;
    MCsCheckBench m_bench;
    int m_holding = 0;
    int m_differing = 0;
    int m_untried = 0;
};

} // namespace Scheduler::ProtocolCheck
