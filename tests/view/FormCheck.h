#pragma once

#include <QString>
#include <map>
#include <vector>

#include "view/PanelWindow.h"

namespace ondelis {

/// Something wrong with how a panel looks.
struct FormFault {
    QString place; ///< the panel, or the panel and the control: "Cms.TxtA"
    QString words;
    int missing = 0; ///< pixels that a cut text lacks

    [[nodiscard]] QString line() const;
};

/// The texts that a person typed into fields.
using Typed = std::map<const Control*, QString>;

/// What is wrong with how a panel looks in its present state: cut texts, controls beyond the client area or on top of
/// one another, options and lists that are not as high as all others, drawings that do not exist, fields without a
/// name. Measured with the fonts that the widgets have. What a person typed may be longer than its field.
[[nodiscard]] std::vector<FormFault> faultsOf(const PanelWindow& window, const Typed& typed = {});

} // namespace ondelis
