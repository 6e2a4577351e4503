#include "mcscheckbench.h"

namespace Scheduler::ProtocolCheck {

using namespace Qt::StringLiterals;

namespace {

void form(MCsCheckBench &bench)
{
    const QStringList malformed = bench.malformed();
    bench.expect(malformed.isEmpty(), u"answers in their form"_s, malformed.value(0));
}

void nothingUnasked(MCsCheckBench &bench)
{
    const QStringList strays = bench.strays();
    bench.expect(strays.isEmpty(), u"one answer to each request"_s, strays.value(0));
}

} // namespace

QList<Rule> answerRules()
{
    return {
        {u"answer.form"_s,
         {},
         u"`ok` is a boolean, `data` an object; `code` is an upper-case word and `message` a text."_s,
         &form},
        {u"answer.unasked"_s, {}, u"Nothing is sent unasked, and each request is answered once."_s, &nothingUnasked},
    };
}

QList<Rule> allRules()
{
    return clientRules() + frameRules() + errorRules() + taskTypeRules() + groupRules() + groupListRules() +
           groupTaskRules() + taskRules() + taskListRules() + taskActionRules() + goneRules() + auditRules() +
           answerRules();
}

} // namespace Scheduler::ProtocolCheck
