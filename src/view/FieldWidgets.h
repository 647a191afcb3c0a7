#pragma once

#include <QPlainTextEdit>

#include "forms/Controls.h"
#include "view/ControlWidget.h"
#include "view/LineField.h"

namespace ondelis {

/// A field of one line.
class TextBoxWidget final : public WidgetOf<LineField, TextBox> {
public:
    TextBoxWidget(PanelWindow& window, TextBox& box, QWidget* parent);

    void refresh() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void refreshText();
    void reportText();
    /// Shows the panel a key before it lands. False if it must no longer land: the handler rewrote the text on a
    /// backspace, or the panel is gone.
    bool reportKey(char32_t character);
};

/// A field of several lines.
class TextAreaWidget final : public WidgetOf<QPlainTextEdit, TextBox> {
public:
    TextAreaWidget(PanelWindow& window, TextBox& box, QWidget* parent);

    void refresh() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void reportText();
};

/// A display that shows its number in exponent form, and its text while it has the keyboard.
class MaskEdBoxWidget final : public WidgetOf<LineField, MaskEdBox> {
public:
    MaskEdBoxWidget(PanelWindow& window, MaskEdBox& box, QWidget* parent);

    void refresh() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

} // namespace ondelis
