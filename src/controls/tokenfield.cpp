#include "controls/tokenfield.h"

#include "values/taglist.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

namespace {

constexpr int Spacing = 3;
constexpr int MinimumInputWidth = 60;

QString escapedItem(QString item)
{
    return item.replace(u","_qs, u"\\,"_qs);
}

// True when the text ends with a comma that separates items (not an escaped one).
bool endsWithSeparator(const QString &text)
{
    return text.endsWith(u',') && !text.endsWith(u"\\,");
}

} // namespace

TokenField::TokenField(QWidget *parent)
    : QFrame(parent)
    , m_input(new QLineEdit(this))
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    m_input->setFrame(false);
    m_input->installEventFilter(this);
    connect(m_input, &QLineEdit::textEdited, this, &TokenField::onInputEdited);
    connect(m_input, &QLineEdit::returnPressed, this, &TokenField::commitInput);
    setFocusProxy(m_input);
}

TokenField::~TokenField() = default;

QStringList TokenField::tokens() const
{
    QStringList all = m_tokens;
    const QString pending = m_input->text().trimmed();
    if (!pending.isEmpty()) {
        for (const QString &item : splitStringsItems(pending)) {
            const QString trimmed = item.trimmed();
            if (!trimmed.isEmpty() && !all.contains(trimmed))
                all.append(trimmed);
        }
    }
    return all;
}

void TokenField::setTokens(const QStringList &tokens)
{
    m_input->clear();
    if (tokens == m_tokens) {
        updatePlaceholder();
        return;
    }
    m_tokens = tokens;
    rebuildChips();
}

QString TokenField::text() const
{
    return joinStringsValue(tokens());
}

void TokenField::setText(const QString &text)
{
    setTokens(text.isEmpty() ? QStringList() : splitStringsItems(text));
}

void TokenField::clear()
{
    setTokens({});
}

void TokenField::setPlaceholderText(const QString &text)
{
    m_placeholder = text;
    updatePlaceholder();
}

QString TokenField::placeholderText() const
{
    return m_placeholder;
}

void TokenField::setReadOnly(bool readOnly)
{
    m_readOnly = readOnly;
    m_input->setReadOnly(readOnly);
}

void TokenField::setPlaceholderAlwaysShown(bool on)
{
    m_placeholderAlwaysShown = on;
    updatePlaceholder();
}

void TokenField::updatePlaceholder()
{
    const bool shown = m_tokens.isEmpty() || m_placeholderAlwaysShown;
    m_input->setPlaceholderText(shown ? m_placeholder : QString());
}

void TokenField::onInputEdited(const QString &text)
{
    if (endsWithSeparator(text))
        commitInput();
    Q_EMIT textEdited();
}

void TokenField::commitInput()
{
    const QStringList all = tokens();
    m_input->clear();
    if (all != m_tokens) {
        m_tokens = all;
        rebuildChips();
    }
}

void TokenField::removeToken(int index)
{
    if (index < 0 || index >= m_tokens.size())
        return;
    m_tokens.removeAt(index);
    rebuildChips();
}

void TokenField::rebuildChips()
{
    qDeleteAll(m_chips);
    m_chips.clear();
    for (const QString &token : std::as_const(m_tokens)) {
        auto *chip = new QLabel(token, this);
        chip->setTextFormat(Qt::PlainText);
        chip->setObjectName(u"token"_qs);
        chip->setStyleSheet(u"QLabel#token { background: rgb(70, 90, 120); color: white;"
                            " border-radius: 7px; padding: 0px 6px; }"_qs);
        chip->setToolTip(token);
        chip->installEventFilter(this);
        chip->show();
        m_chips.append(chip);
    }
    updatePlaceholder();
    relayout();
}

void TokenField::relayout()
{
    const int right = width() - Spacing;
    int x = Spacing;
    int y = Spacing;
    const int lineHeight = std::max(m_input->sizeHint().height(), 18);
    for (QLabel *chip : std::as_const(m_chips)) {
        const int chipWidth = std::min(chip->sizeHint().width(), std::max(right - Spacing, 10));
        if (x > Spacing && x + chipWidth > right) {
            x = Spacing;
            y += lineHeight + Spacing;
        }
        chip->setGeometry(x, y, chipWidth, lineHeight);
        x += chipWidth + Spacing;
    }
    if (x > Spacing && right - x < MinimumInputWidth) {
        x = Spacing;
        y += lineHeight + Spacing;
    }
    m_input->setGeometry(x, y, std::max(right - x, MinimumInputWidth), lineHeight);
}

bool TokenField::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_input && event->type() == QEvent::KeyPress && !m_readOnly) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Backspace && m_input->text().isEmpty() && !m_tokens.isEmpty()) {
            removeToken(static_cast<int>(m_tokens.size()) - 1);
            Q_EMIT textEdited();
            return true;
        }
    } else if (event->type() == QEvent::MouseButtonDblClick && !m_readOnly) {
        const int index = static_cast<int>(m_chips.indexOf(static_cast<QLabel *>(watched)));
        if (index >= 0) {
            const QString token = m_tokens.at(index);
            commitInput();
            m_tokens.removeAt(index);
            rebuildChips();
            m_input->setText(escapedItem(token));
            m_input->setFocus(Qt::MouseFocusReason);
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

void TokenField::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    relayout();
}

void TokenField::mousePressEvent(QMouseEvent *event)
{
    m_input->setFocus(Qt::MouseFocusReason);
    QFrame::mousePressEvent(event);
}
