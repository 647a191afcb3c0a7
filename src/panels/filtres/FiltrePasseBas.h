#pragma once

#include "panels/filtres/SectionPasse.h"

namespace ondelis {

/// Inductor and capacitor of a low-pass section.
class FiltrePasseBas final : public SectionPasse {
public:
    explicit FiltrePasseBas(Runtime& runtime);

private:
    void Form_Load() override;
    [[nodiscard]] Double L() const override;
    [[nodiscard]] Double C() const override;
    void CompleterNombreSpires(CalculNombreSpires& spires) override;
};

} // namespace ondelis
