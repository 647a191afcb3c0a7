#pragma once

#include <QPlainTextEdit>

#include "forms/Controls.h"
#include "view/Colors.h"
#include "view/ControlWidget.h"
#include "view/LineField.h"

namespace ondelis {

/// A field of one line.
class TextBoxWidget final : public LineField, public ControlWidget {
public:
    TextBoxWidget(PanelWindow& window, TextBox& box, QWidget* parent);

    QWidget& widget() override { return *this; }
    void follow() override;
    void forgetColors() override { colors_.forget(); }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void followText();
    /// Typing and pasting stop at the field's limit; a longer text that code has stored stays whole.
    void limitLength();
    void tellText();
    /// Shows the panel a key before it lands. False where it must not land any more: the handler rewrote the text on a
    /// backspace, or the panel is gone.
    bool tellKey(char32_t character);

    TextBox& box_;
    Colors colors_;
};

/// A field of several lines.
class TextAreaWidget final : public QPlainTextEdit, public ControlWidget {
public:
    TextAreaWidget(PanelWindow& window, TextBox& box, QWidget* parent);

    QWidget& widget() override { return *this; }
    void follow() override;
    void forgetColors() override { colors_.forget(); }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void tellText();

    TextBox& box_;
    Colors colors_;
};

/// A display that shows its number in exponent form, and its text while it has the keyboard.
class MaskEdBoxWidget final : public LineField, public ControlWidget {
public:
    MaskEdBoxWidget(PanelWindow& window, MaskEdBox& box, QWidget* parent);

    QWidget& widget() override { return *this; }
    void follow() override;
    void forgetColors() override { colors_.forget(); }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    MaskEdBox& box_;
    Colors colors_;
};

} // namespace ondelis
