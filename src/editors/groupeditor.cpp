#include "editors/groupeditor.h"

#include "editors/sectioneditor.h"

#include <QFrame>
#include <QLabel>
#include <QWidget>

#include <algorithm>

namespace {

constexpr int HeadingHeight = 20;

} // namespace

QFrame *GroupEditor::createSeparator(QWidget *parent, int top)
{
    auto *line = new QFrame(parent);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    QPalette palette = line->palette();
    palette.setColor(QPalette::Light, Qt::black);
    palette.setColor(QPalette::Dark, Qt::black);
    palette.setColor(QPalette::Mid, Qt::black);
    line->setPalette(palette);
    line->setGeometry(0, top, parent->width(), 2);
    line->show();
    return line;
}

QLabel *GroupEditor::createHeadingLabel(QWidget *parent, const QString &text, int pointSize)
{
    auto *label = new QLabel(text, parent);
    QFont font = label->font();
    font.setBold(true);
    font.setPointSize(pointSize);
    label->setFont(font);
    label->setObjectName(u"heading"_qs);
    label->setAutoFillBackground(true);
    label->setBackgroundRole(QPalette::Button);
    label->setTextInteractionFlags(Qt::NoTextInteraction);
    return label;
}

GroupEditor::GroupEditor(QString xmlName, QString title)
    : m_xmlName(std::move(xmlName))
    , m_title(std::move(title))
{
}

GroupEditor::~GroupEditor()
{
    qDeleteAll(m_sectionEditors);
}

QLabel *GroupEditor::label() const
{
    return m_label;
}

QFrame *GroupEditor::line() const
{
    return m_line;
}

QList<FieldEditor *> GroupEditor::editors() const
{
    QList<FieldEditor *> all;
    for (const SectionEditor *section : m_sectionEditors)
        all.append(section->editors());
    return all;
}

int GroupEditor::createInParent(QWidget *parent, int top, bool first)
{
    m_top = top;
    const int width = parent->width();
    if (!first)
        m_line = createSeparator(parent, top);
    m_label = createHeadingLabel(parent, m_title, 14);
    m_label->setAlignment(Qt::AlignCenter);
    m_label->setGeometry(10, top + 3, width - 10, HeadingHeight);
    m_label->show();
    return top + 23;
}

int GroupEditor::showEditor(int top)
{
    // The separator goes with the heading: left where it was built, it would cross the tall
    // rows (lists, structures) that end the group above.
    m_top = top;
    if (m_line)
        m_line->move(m_line->x(), top);
    if (m_label)
        m_label->move(m_label->x(), top + 3);
    return top + 23;
}

void GroupEditor::setWidth(int width)
{
    if (m_line)
        m_line->resize(width, m_line->height());
    if (m_label)
        m_label->resize(std::max(0, width - 10), m_label->height());
}
