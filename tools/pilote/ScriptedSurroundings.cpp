#include "ScriptedSurroundings.h"

namespace ondelis::pilote {

void ScriptedSurroundings::forget()
{
    boxes_.clear();
    fault_.reset();
}

Answer ScriptedSurroundings::showBox(const MessageBox& box)
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

void ScriptedSurroundings::showFault(const Fault& fault)
{
    fault_ = fault;
    whileBoxWaits_();
}

} // namespace ondelis::pilote
