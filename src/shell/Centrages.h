#pragma once

#include "forms/Host.h"

namespace ondelis {

/// Centres a panel in the outer size of the frame.
template <class Frame, class Panel>
void CentrerFeuille(const Frame& frame, Panel& panel)
{
    panel.Top = (frame.Height - panel.Height) / 2;
    panel.Left = (frame.Width - panel.Width) / 2;
}

/// Centres a window on the screen.
template <class Form>
void CentrerEcran(const Size& screen, Form& form)
{
    form.Top = (screen.Height - form.Height) / 2;
    form.Left = (screen.Width - form.Width) / 2;
}

} // namespace ondelis
