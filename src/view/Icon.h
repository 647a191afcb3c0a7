#pragma once

#include <QIcon>

namespace ondelis {

/// The program's icon, rendered from its drawing in whatever size is asked for. The toolkit itself reads drawings only
/// with a plugin, which a system may lack.
[[nodiscard]] QIcon programIcon();

} // namespace ondelis
