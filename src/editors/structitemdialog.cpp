#include "editors/structitemdialog.h"

#include "catalogue/stringtables.h"
#include "editors/dialogfooter.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

// "CountryName" -> "Country Name", "AOTitle-fr" -> "AO Title (fr)".
QString memberTitle(const QString &name)
{
    const qsizetype dash = name.indexOf(u'-');
    const QString base = dash < 0 ? name : name.left(dash);
    QString title;
    for (qsizetype i = 0; i < base.size(); ++i) {
        const QChar c = base.at(i);
        // "GPSAltitude" -> "GPS Altitude" as well as "CountryName" -> "Country Name".
        const bool wordStarts =
            i > 0 && c.isUpper() &&
            (base.at(i - 1).isLower() ||
             (base.at(i - 1).isUpper() && i + 1 < base.size() && base.at(i + 1).isLower()));
        if (wordStarts)
            title += u' ';
        title += c;
    }
    if (!title.isEmpty())
        title[0] = title.at(0).toUpper();
    return dash < 0 ? title : title + u" (" + name.mid(dash + 1) + u')';
}

} // namespace

StructItemDialog::StructItemDialog(const ExifField &field, const QString &title,
                                   const QList<StructValue> &items, QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(title);
    setMinimumSize(520, 460);
    auto *layout = new QVBoxLayout(this);
    auto *form = new QFormLayout;

    // The catalogue's members, then any other the items hold (a member in another language).
    QList<ExifField::Member> members = field.members();
    for (const StructValue &item : items) {
        for (const auto &[name, value] : item.members) {
            const bool known = std::any_of(members.cbegin(), members.cend(),
                                           [&name](const auto &m) { return m.name == name; });
            if (!known) {
                ExifField::Member extra;
                extra.name = name;
                extra.kind = value.kind == StructValue::Kind::List ? ExifField::Member::Kind::List
                             : value.kind == StructValue::Kind::Struct
                                 ? ExifField::Member::Kind::Structure
                                 : ExifField::Member::Kind::Text;
                members.append(extra);
            }
        }
    }
    for (const ExifField::Member &member : std::as_const(members)) {
        Row row{member.name, member.kind, new QLineEdit(this)};
        // The same text in every item, or none of them holding the member: shown as is.
        std::optional<QString> common;
        bool differs = false;
        for (const StructValue &item : items) {
            const StructValue *value = item.member(member.name);
            const QString text = value ? displayText(*value) : QString();
            if (!common)
                common = text;
            else if (*common != text)
                differs = true;
        }
        if (differs)
            row.edit->setPlaceholderText(localized(u"Multiple values"_qs));
        else if (common)
            row.edit->setText(*common);
        if (member.kind == ExifField::Member::Kind::List)
            row.edit->setToolTip(tr("Items separated by semicolons."));
        else if (member.kind == ExifField::Member::Kind::Structure)
            row.edit->setToolTip(
                tr("A structure in ExifTool's form: {Member=value,Other=[item,item]}."));
        form->addRow(memberTitle(member.name) + u':', row.edit);
        m_rows.append(row);
    }
    auto *content = new QWidget(this);
    content->setLayout(form);
    auto *scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(content);
    layout->addWidget(scroll);

    m_error = addDialogFooter(this, layout);
    if (!m_rows.isEmpty())
        m_rows.constFirst().edit->setFocus();
}

QLineEdit *StructItemDialog::memberField(const QString &name) const
{
    for (const Row &row : m_rows) {
        if (row.name == name)
            return row.edit;
    }
    return nullptr;
}

QString StructItemDialog::errorText() const
{
    return m_error->isHidden() ? QString() : m_error->text();
}

QString StructItemDialog::displayText(const StructValue &value)
{
    switch (value.kind) {
    case StructValue::Kind::Text:
        return value.text;
    case StructValue::Kind::List: {
        if (std::all_of(value.items.cbegin(), value.items.cend(), [](const StructValue &item) {
                return item.kind == StructValue::Kind::Text;
            })) {
            QStringList texts;
            for (const StructValue &item : value.items)
                texts.append(item.text);
            return texts.join(u"; "_qs);
        }
        return value.serialized();
    }
    case StructValue::Kind::Struct:
        return value.serialized();
    }
    return {};
}

void StructItemDialog::accept()
{
    QList<Edit> edits;
    for (const Row &row : std::as_const(m_rows)) {
        if (!row.edit->isModified())
            continue;
        const QString text = row.edit->text().trimmed();
        if (text.isEmpty()) {
            edits.append({row.name, std::nullopt});
            continue;
        }
        const bool serialized = row.kind == ExifField::Member::Kind::Structure ||
                                (row.kind == ExifField::Member::Kind::List &&
                                 (text.startsWith(u'[') || text.startsWith(u'{')));
        if (serialized) {
            const auto value = StructValue::parse(text);
            if (!value) {
                m_error->setText(
                    tr("%1 is not in ExifTool's structure form.").arg(memberTitle(row.name)));
                m_error->show();
                row.edit->setFocus();
                return;
            }
            edits.append({row.name, *value});
        } else if (row.kind == ExifField::Member::Kind::List) {
            QList<StructValue> items;
            for (const QString &item : text.split(u';', Qt::SkipEmptyParts)) {
                if (!item.trimmed().isEmpty())
                    items.append(StructValue::makeText(item.trimmed()));
            }
            edits.append({row.name, StructValue::makeList(items)});
        } else {
            edits.append({row.name, StructValue::makeText(text)});
        }
    }
    m_edits = edits;
    m_error->hide();
    QDialog::accept();
}
