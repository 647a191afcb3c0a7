#include "view/FieldWidgets.h"

#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QWheelEvent>

#include "forms/Runtime.h"
#include "view/Copying.h"
#include "view/Fonts.h"

namespace ondelis {
namespace {

constexpr char32_t backspaceKey = 8;

std::string toText(const QString& text)
{
    return text.toStdString();
}

/// The character that a key enters, or 0. Backspace counts as one.
char32_t enteredBy(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers commands
        = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (event.key() == Qt::Key_Backspace)
        return commands == Qt::NoModifier ? backspaceKey : 0;
    const auto characters = event.text().toUcs4();
    if (characters.size() != 1 || !QChar::isPrint(characters.front()))
        return 0;
    // Ctrl and Alt together are the AltGr of some keyboards.
    const bool command = commands != Qt::NoModifier && commands != (Qt::ControlModifier | Qt::AltModifier);
    return command ? 0 : characters.front();
}

} // namespace

TextBoxWidget::TextBoxWidget(PanelWindow& window, TextBox& box, QWidget* parent) : WidgetOf{window, box, parent}
{
    setFont(fontOf(box.design().font, *parent));
    setAlignment(horizontal(box.design().align));
    connect(this, &QLineEdit::textChanged, this, [this] { reportText(); });
}

void TextBoxWidget::refresh()
{
    applyGeometry(Double{control().Top}.value());
    refreshText();
    setReadOnly(control().Locked);
    colors().applyToField(*this, control().BackColor, control().ForeColor);
    setVisible(control().Visible);
}

void TextBoxWidget::refreshText()
{
    const QSignalBlocker quiet{this};
    const QString stored = toQString(control().Text.get());
    if (stored != text()) {
        setText(stored);
        // A text shows its start, but in the field being typed in the caret stays where typing continues.
        if (panelWindow().panel().runtime().focused() != &control())
            setCursorPosition(0);
    }
}

void TextBoxWidget::reportText()
{
    const QString entered = text();
    const QString after = entered.mid(cursorPosition());
    perform([&](User& user) { user.edit(control(), toText(entered.left(cursorPosition())), toText(after)); });
    // What was put in may have been cut: typing continues after it.
    if (!detached() && text() != entered && text().endsWith(after))
        setCursorPosition(static_cast<int>(text().size() - after.size()));
}

bool TextBoxWidget::reportKey(char32_t character)
{
    if (isReadOnly())
        return true;
    bool rewritten = false;
    perform([&](User& user) { rewritten = user.key(control(), character); });
    return !detached() && !(rewritten && character == backspaceKey);
}

void TextBoxWidget::keyPressEvent(QKeyEvent* event)
{
    if (copyAll(*event, hasSelectedText(), text()))
        return;
    const char32_t character = enteredBy(*event);
    if (character == 0 || reportKey(character))
        LineField::keyPressEvent(event);
}

void TextBoxWidget::inputMethodEvent(QInputMethodEvent* event)
{
    for (const char32_t character : event->commitString().toUcs4())
        reportKey(character);
    if (!detached())
        LineField::inputMethodEvent(event);
}

void TextBoxWidget::contextMenuEvent(QContextMenuEvent* event)
{
    showFieldMenu(createStandardContextMenu(), event->globalPos(), hasSelectedText(), text());
}

TextAreaWidget::TextAreaWidget(PanelWindow& window, TextBox& box, QWidget* parent) : WidgetOf{window, box, parent}
{
    setFont(fontOf(box.design().font, *parent));
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, [this] { reportText(); });
}

void TextAreaWidget::refresh()
{
    applyGeometry(Double{control().Top}.value());
    const QSignalBlocker quiet{this};
    const QString stored = toQString(control().Text.get());
    if (stored != toPlainText()) {
        setPlainText(stored);
        if (panelWindow().panel().runtime().focused() == &control())
            moveCursor(QTextCursor::End);
    }
    setReadOnly(control().Locked);
    // Even locked, its text can be moved through, selected and copied by key.
    setTextInteractionFlags(textInteractionFlags() | Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
    colors().applyToField(*this, control().BackColor, control().ForeColor);
    setVisible(control().Visible);
}

void TextAreaWidget::keyPressEvent(QKeyEvent* event)
{
    if (!copyAll(*event, textCursor().hasSelection(), toPlainText()))
        QPlainTextEdit::keyPressEvent(event);
}

void TextAreaWidget::contextMenuEvent(QContextMenuEvent* event)
{
    showFieldMenu(createStandardContextMenu(), event->globalPos(), textCursor().hasSelection(), toPlainText());
}

void TextAreaWidget::wheelEvent(QWheelEvent* event)
{
    // The base class would change the size of a locked text.
    if ((event->modifiers() & Qt::ControlModifier) != 0)
        event->ignore();
    else
        QPlainTextEdit::wheelEvent(event);
}

void TextAreaWidget::reportText()
{
    const QString entered = toPlainText();
    const int caret = textCursor().position();
    perform([&](User& user) { user.edit(control(), toText(entered.left(caret)), toText(entered.mid(caret))); });
}

MaskEdBoxWidget::MaskEdBoxWidget(PanelWindow& window, MaskEdBox& box, QWidget* parent) : WidgetOf{window, box, parent}
{
    setReadOnly(true);
}

void MaskEdBoxWidget::refresh()
{
    applyGeometry();
    setText(toQString(hasFocus() ? control().Text.get() : control().display()));
    setCursorPosition(0);
    colors().applyToField(*this, control().design().BackColor, windowTextColor);
}

void MaskEdBoxWidget::keyPressEvent(QKeyEvent* event)
{
    if (!copyAll(*event, hasSelectedText(), text()))
        LineField::keyPressEvent(event);
}

void MaskEdBoxWidget::contextMenuEvent(QContextMenuEvent* event)
{
    showFieldMenu(createStandardContextMenu(), event->globalPos(), hasSelectedText(), text());
}

void MaskEdBoxWidget::focusOutEvent(QFocusEvent* event)
{
    LineField::focusOutEvent(event);
    if (!detached())
        refresh();
}

} // namespace ondelis
