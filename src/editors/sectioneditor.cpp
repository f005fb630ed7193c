#include "editors/sectioneditor.h"

#include "editors/groupeditor.h"

#include "catalogue/stringtables.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include <algorithm>

namespace {

constexpr int HeadingHeight = 20;
constexpr int ButtonWidth = 70;
constexpr int ButtonHeight = 15;

} // namespace

SectionEditor::SectionEditor(QString name, QString title)
    : m_name(std::move(name))
    , m_title(std::move(title))
{
}

SectionEditor::~SectionEditor() = default;

QFrame *SectionEditor::line() const
{
    return m_line;
}

QLabel *SectionEditor::label() const
{
    return m_label;
}

QPushButton *SectionEditor::additionalButton() const
{
    return m_additionalButton;
}

int SectionEditor::createInParent(QWidget *parent, int top, bool first)
{
    m_top = top;
    const int width = parent->width();
    if (!first)
        m_line = GroupEditor::createSeparator(parent, top);
    m_label = GroupEditor::createHeadingLabel(parent, m_title, 12);
    m_label->setGeometry(10, top + 4, std::max(0, width - 40), HeadingHeight);
    m_label->show();
    if (m_name == GpsSectionName) {
        m_additionalButton =
            new QPushButton(StringTables::instance().localizedString(u"Show Map"_qs), parent);
        QFont font = m_additionalButton->font();
        font.setPointSize(9);
        m_additionalButton->setFont(font);
        m_additionalButton->setFocusPolicy(Qt::NoFocus);
        // The theme's button padding would not leave room for the text in so small a button.
        m_additionalButton->setStyleSheet(u"QPushButton { padding: 0px 2px; }"_qs);
        m_additionalButton->setGeometry(width - 80, top + 4, ButtonWidth, ButtonHeight);
        m_additionalButton->show();
    }
    return top + 20;
}

int SectionEditor::showEditor(int top)
{
    m_top = top;
    if (m_line) {
        m_line->move(m_line->x(), top);
        m_line->show();
    }
    if (m_label) {
        m_label->move(m_label->x(), top + 4);
        m_label->show();
    }
    if (m_additionalButton) {
        m_additionalButton->move(m_additionalButton->x(), top + 4);
        m_additionalButton->show();
    }
    return top + 20;
}

int SectionEditor::hideEditor(int top)
{
    if (m_line)
        m_line->hide();
    if (m_label)
        m_label->hide();
    if (m_additionalButton)
        m_additionalButton->hide();
    return top;
}

void SectionEditor::setWidth(int width)
{
    if (m_line)
        m_line->resize(width, m_line->height());
    if (m_label)
        m_label->resize(std::max(0, width - 40), m_label->height());
    if (m_additionalButton)
        m_additionalButton->move(width - 80, m_additionalButton->y());
}
