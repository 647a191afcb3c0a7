#pragma once

#include <QLineEdit>

namespace ondelis {

/// A field of one line in which a click that gives it the keyboard selects its text, as the Tab key does; the next
/// click places the caret. A drag selects what it covers, at once. The selection lasts while a menu has the keyboard.
class LineField : public QLineEdit {
public:
    using QLineEdit::QLineEdit;

protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool clickedInto_ = false; ///< the button that gave it the keyboard is still down
};

} // namespace ondelis
