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
    if (box.buttons == 0)
        return Answer::Ok;
    if (answers_.empty())
        return Answer::Yes;
    const Answer answer = answers_.front();
    answers_.pop_front();
    return answer;
}

} // namespace ondelis::pilote
