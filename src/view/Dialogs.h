#pragma once

#include <QWidget>

#include "forms/Host.h"
#include "kit/Fault.h"

namespace ondelis {

/// Shows a message box over the window and waits for the answer.
Answer showMessageBox(QWidget& window, const MessageBox& box);

/// Names the fault that ends the program, and waits until it has been read.
void showFaultBox(QWidget& window, const Fault& fault);

} // namespace ondelis
