#include "editors/otherlanguagesdialog.h"

#include "catalogue/stringtables.h"
#include "editors/dialogfooter.h"
#include "engine/languagealternatives.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QVBoxLayout>

OtherLanguagesDialog::OtherLanguagesDialog(const QString &title, QString key,
                                           QList<ExifFileInfoPtr> files, QWidget *parent)
    : QDialog(parent)
    , m_key(std::move(key))
    , m_files(std::move(files))
{
    setWindowTitle(tr("Other Languages of %1").arg(title));
    setMinimumWidth(520);
    auto *layout = new QVBoxLayout(this);
    auto *note = new QLabel(
        tr("The form edits the default language. Here are the others: a language whose text "
           "differs between the selected files shows \u201cMultiple values\u201d and is kept as "
           "each file has it unless you type over it. An empty text removes the language."),
        this);
    note->setWordWrap(true);
    layout->addWidget(note);

    m_grid = new QGridLayout;
    m_grid->setColumnStretch(1, 1);
    m_grid->addWidget(new QLabel(tr("Language"), this), 0, 0);
    m_grid->addWidget(new QLabel(tr("Text"), this), 0, 1);
    layout->addLayout(m_grid);

    QList<const ExifFileInfo *> plain;
    for (const ExifFileInfoPtr &file : std::as_const(m_files))
        plain.append(file.get());
    for (const LanguageAcrossFiles &language : languagesAcross(plain, m_key))
        addRow(language.language, language.commonText);
    if (!m_rows.isEmpty())
        m_rows.constFirst().text->setFocus();

    auto *add = new QPushButton(tr("Add Language"), this);
    connect(add, &QPushButton::clicked, this, [this] { addLanguage().code->setFocus(); });
    layout->addWidget(add, 0, Qt::AlignLeft);

    m_error = addDialogFooter(this, layout);
}

void OtherLanguagesDialog::addRow(const QString &language, const QString &commonText)
{
    Row row;
    row.language = language;
    row.code = new QLineEdit(language, this);
    row.code->setReadOnly(!language.isEmpty());
    row.code->setPlaceholderText(tr("e.g. de, fr-CA"));
    row.code->setMaximumWidth(110);
    row.text = new QLineEdit(commonText, this);
    if (!language.isEmpty() && commonText.isNull())
        row.text->setPlaceholderText(localized(u"Multiple values"_qs));
    row.remove = new QPushButton(tr("Remove"), this);
    const int line = m_grid->rowCount();
    m_grid->addWidget(row.code, line, 0);
    m_grid->addWidget(row.text, line, 1);
    m_grid->addWidget(row.remove, line, 2);
    const qsizetype index = m_rows.size();
    connect(row.remove, &QPushButton::clicked, this, [this, index] {
        Row &r = m_rows[index];
        r.removed = true;
        for (QWidget *widget : {static_cast<QWidget *>(r.code), static_cast<QWidget *>(r.text),
                                static_cast<QWidget *>(r.remove)})
            widget->hide();
    });
    m_rows.append(row);
}

QLineEdit *OtherLanguagesDialog::textField(const QString &language) const
{
    for (const Row &row : m_rows) {
        if (!row.removed && row.language == language)
            return row.text;
    }
    return nullptr;
}

OtherLanguagesDialog::Fields OtherLanguagesDialog::addLanguage()
{
    addRow(QString(), QString());
    return {m_rows.constLast().code, m_rows.constLast().text};
}

void OtherLanguagesDialog::removeLanguage(const QString &language)
{
    for (const Row &row : std::as_const(m_rows)) {
        if (!row.removed && (row.language == language || row.code->text() == language)) {
            row.remove->click();
            return;
        }
    }
}

QString OtherLanguagesDialog::errorText() const
{
    return m_error->isHidden() ? QString() : m_error->text();
}

void OtherLanguagesDialog::accept()
{
    QSet<QString> seen;
    for (const Row &row : std::as_const(m_rows)) {
        if (!row.removed && !row.language.isEmpty())
            seen.insert(row.language);
    }
    for (const Row &row : std::as_const(m_rows)) {
        if (row.removed || !row.language.isEmpty())
            continue;
        const QString typed = row.code->text().trimmed();
        if (typed.isEmpty() && row.text->text().isEmpty())
            continue;
        const QString code = normalizedLanguage(typed);
        QString problem;
        if (code.isNull())
            problem =
                tr("\u201c%1\u201d is not a language code such as de, fr-CA or pt-BR.").arg(typed);
        else if (seen.contains(code))
            problem = tr("%1 is listed twice.").arg(code);
        if (!problem.isEmpty()) {
            m_error->setText(problem);
            m_error->show();
            row.code->setFocus();
            return;
        }
        seen.insert(code);
    }
    m_error->hide();
    apply();
    QDialog::accept();
}

void OtherLanguagesDialog::apply()
{
    QSet<const ExifFileInfo *> changed;
    for (const Row &row : std::as_const(m_rows)) {
        const bool added = row.language.isEmpty();
        const QString language = added ? normalizedLanguage(row.code->text()) : row.language;
        if (language.isNull() || (added && (row.removed || row.text->text().trimmed().isEmpty())))
            continue;
        // Untouched, a row leaves each file as it is: its own text, or none.
        if (!added && !row.removed && !row.text->isModified())
            continue;
        const QString text = row.removed ? QString() : row.text->text().trimmed();
        for (const ExifFileInfoPtr &file : std::as_const(m_files)) {
            const QString current = file->exifValue(m_key + u'-' + language);
            if (current == text && current.isNull() == text.isNull())
                continue;
            if (text.isEmpty() && current.isNull())
                continue;
            setOtherLanguage(*file, m_key, language, text);
            changed.insert(file.get());
        }
    }
    m_changed.clear();
    for (const ExifFileInfoPtr &file : std::as_const(m_files)) {
        if (changed.contains(file.get()))
            m_changed.append(file);
    }
}
