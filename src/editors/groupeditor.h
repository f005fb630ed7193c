#pragma once

#include <QList>
#include <QPointer>
#include <QString>

class FieldEditor;
class QFrame;
class QLabel;
class QWidget;
class SectionEditor;

// The heading of one catalogue group in the form, above its sections.
class GroupEditor
{
public:
    GroupEditor(QString xmlName, QString title);
    ~GroupEditor();
    GroupEditor(const GroupEditor &) = delete;
    GroupEditor &operator=(const GroupEditor &) = delete;

    const QString &xmlName() const { return m_xmlName; }
    const QString &title() const { return m_title; }
    int top() const { return m_top; }
    QLabel *label() const;
    QFrame *line() const;

    // Owned by the group.
    QList<SectionEditor *> &sectionEditors() { return m_sectionEditors; }
    const QList<SectionEditor *> &sectionEditors() const { return m_sectionEditors; }
    // The field editors of all its sections, in order.
    QList<FieldEditor *> editors() const;

    // Returns the top of what follows.
    int createInParent(QWidget *parent, int top, bool first);
    int showEditor(int top);
    // Keeps the heading across the whole width of the form.
    void setWidth(int width);

    // The heading parts shared with the section headings.
    static QFrame *createSeparator(QWidget *parent, int top);
    static QLabel *createHeadingLabel(QWidget *parent, const QString &text, int pointSize);

private:
    QString m_xmlName;
    QString m_title;
    int m_top = 0;
    QPointer<QLabel> m_label;
    QPointer<QFrame> m_line;
    QList<SectionEditor *> m_sectionEditors;
};
