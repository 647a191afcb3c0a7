#include "Subject.h"

#include "Headless.h"
#include "Pilote.h"

namespace ondelis::fuzz {
namespace {

class HeadlessSubject final : public Subject {
public:
    pilote::Json answer(const std::string& command) override { return pilote_.answer(command); }
    [[nodiscard]] const Desk& desk() const override { return body_.frame().desk(); }

private:
    pilote::Headless body_;
    pilote::Pilote pilote_{body_};
};

} // namespace

std::unique_ptr<Subject> newHeadless()
{
    return std::make_unique<HeadlessSubject>();
}

} // namespace ondelis::fuzz
