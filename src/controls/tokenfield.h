#pragma once

#include <QFrame>
#include <QList>
#include <QStringList>

class QLabel;
class QLineEdit;

// A field of tokens: each list item shows as one token, however many commas it holds. New items
// are typed at the end; a plain comma or Return ends one, and "\," types a comma inside it.
// Backspace in the empty input removes the last token; a double click takes a token back into
// the input for editing.
class TokenField : public QFrame
{
    Q_OBJECT

public:
    explicit TokenField(QWidget *parent = nullptr);
    ~TokenField() override;

    // The tokens followed by the items still being typed.
    QStringList tokens() const;
    void setTokens(const QStringList &tokens);
    // The tokens as one list value (commas inside items escaped).
    QString text() const;
    void setText(const QString &text);
    void clear();

    void setPlaceholderText(const QString &text);
    QString placeholderText() const;
    // Whether the placeholder stays after the tokens instead of only standing for none.
    void setPlaceholderAlwaysShown(bool on);
    void setReadOnly(bool readOnly);
    bool isReadOnly() const { return m_readOnly; }

    QLineEdit *lineEdit() const { return m_input; }
    int tokenCount() const { return static_cast<int>(m_tokens.size()); }
    QLabel *tokenWidget(int index) const { return m_chips.value(index); }

Q_SIGNALS:
    // The user added, removed or typed: text() changed by the user's hand.
    void textEdited();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void onInputEdited(const QString &text);
    void commitInput();
    void removeToken(int index);
    void rebuildChips();
    void relayout();
    void updatePlaceholder();

    QStringList m_tokens;
    QList<QLabel *> m_chips;
    QLineEdit *m_input = nullptr;
    QString m_placeholder;
    bool m_placeholderAlwaysShown = false;
    bool m_readOnly = false;
};
