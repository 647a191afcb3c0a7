#pragma once

#include "panels/filtres/SectionBande.h"

namespace ondelis {

/// The two inductors and capacitors of a band-pass section.
class FiltrePasseBande final : public SectionBande {
public:
    explicit FiltrePasseBande(Runtime& runtime);

private:
    void Form_Load() override;
    [[nodiscard]] bool Calculable() const override;
    [[nodiscard]] Double Self1(Double d) const override;
    [[nodiscard]] Double Self2(Double d) const override;
    [[nodiscard]] Double Capa1(Double d) const override;
    [[nodiscard]] Double Capa2(Double d) const override;
};

} // namespace ondelis
