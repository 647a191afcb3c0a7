#include "view/AccessibleNames.h"

#include <algorithm>

#include "view/Texts.h"

namespace ondelis {

void AccessibleNames::rename(const Label* label, const std::string& name) const
{
    const auto [first, last] = named_.equal_range(label);
    std::for_each(first, last, [&](const auto& entry) {
        if (entry.second->accessibleName() != toQString(name)) // each call is announced
            entry.second->setAccessibleName(toQString(name));
    });
}

} // namespace ondelis
