#include "ScriptedHost.h"

namespace ondelis::pilote {

void ScriptedHost::forget()
{
    boxes_.clear();
    fault_.reset();
}

Answer ScriptedHost::showBox(const MessageBox& box)
{
    boxes_.push_back(box);
    whileBoxWaits_();
    if (box.buttons == 0)
        return Answer::Ok;
    if (answers_.empty())
        return Answer::Yes;
    const Answer answer = answers_.front();
    answers_.pop_front();
    return answer;
}

void ScriptedHost::showFault(const Fault& fault)
{
    fault_ = fault;
    whileBoxWaits_();
}

} // namespace ondelis::pilote
