#include "Target.h"

#include "HeadlessBackend.h"
#include "Pilote.h"

namespace ondelis::fuzz {
namespace {

class HeadlessTarget final : public Target {
public:
    pilote::Json answer(const std::string& command) override { return pilote_.answer(command); }
    [[nodiscard]] const Runtime& runtime() const override { return backend_.frame().runtime(); }

private:
    pilote::HeadlessBackend backend_;
    pilote::Pilote pilote_{backend_};
};

} // namespace

std::unique_ptr<Target> makeHeadlessTarget()
{
    return std::make_unique<HeadlessTarget>();
}

} // namespace ondelis::fuzz
