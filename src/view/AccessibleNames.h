#pragma once

#include <QWidget>
#include <string>
#include <unordered_map>

namespace ondelis {

class Label;

/// The names that screen readers give to the widgets of a panel: each widget is named after a label, or, where no label
/// names it, after the panel. A null label stands for the panel.
class AccessibleNames {
public:
    void nameAfter(const Label* label, QWidget& widget) { named_.emplace(label, &widget); }
    /// Gives a new name to the widgets that are named after the label.
    void rename(const Label* label, const std::string& name) const;

private:
    std::unordered_multimap<const Label*, QWidget*> named_;
};

} // namespace ondelis
