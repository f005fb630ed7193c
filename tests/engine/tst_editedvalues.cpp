#include "engine/editedvalues.h"

#include <QTest>

#include <algorithm>

namespace {

// "A=1,B=2"; an empty text is an empty dictionary.
TagDictionary tags(const QString &text)
{
    TagDictionary result;
    for (const QString &pair : text.split(u',', Qt::SkipEmptyParts)) {
        const qsizetype equals = pair.indexOf(u'=');
        result.insert(pair.left(equals), pair.mid(equals + 1));
    }
    return result;
}

QStringList sorted(QStringList list)
{
    std::sort(list.begin(), list.end());
    return list;
}

} // namespace

class TestEditedValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Steps: "set K=V", "null K" (a value that is null), "remove K", "original K=V,…" (a new
    // original under the same current values, as a save's read-back), "values K=V,…".
    void currentValuesFollowEveryStep_data()
    {
        QTest::addColumn<QStringList>("steps");
        QTest::addColumn<QString>("expected"); // the current values
        QTest::addColumn<QStringList>("edited");
        const auto row = [](const char *tag, const QStringList &steps, const char *expected,
                            const QStringList &edited) {
            QTest::newRow(tag) << steps << QString::fromUtf8(expected) << edited;
        };
        row("untouched", {}, "A=1,B=2", {});
        row("set", {u"set A=9"_qs}, "A=9,B=2", {u"A"_qs});
        row("set back", {u"set A=9"_qs, u"set A=1"_qs}, "A=1,B=2", {});
        row("new key", {u"set C=3"_qs}, "A=1,B=2,C=3", {u"C"_qs});
        row("removed", {u"remove B"_qs}, "A=1", {u"B"_qs});
        row("removed then set back", {u"remove B"_qs, u"set B=2"_qs}, "A=1,B=2", {});
        row("removed then set anew", {u"remove B"_qs, u"set B=7"_qs}, "A=1,B=7", {u"B"_qs});
        row("absent key removed", {u"remove Z"_qs}, "A=1,B=2", {});
        row("set then removed", {u"set A=9"_qs, u"remove A"_qs}, "B=2", {u"A"_qs});
        row("new key set then removed", {u"set C=3"_qs, u"remove C"_qs}, "A=1,B=2", {});
        row("null over a value", {u"null A"_qs}, "A=,B=2", {u"A"_qs});
        row("null as a new key", {u"null C"_qs}, "A=1,B=2,C=", {u"C"_qs});
        row("empty is not null", {u"set A="_qs}, "A=,B=2", {u"A"_qs});
        row("new original keeps the edits", {u"set A=9"_qs, u"original A=1,B=2,C=3"_qs}, "A=9,B=2",
            {u"A"_qs, u"C"_qs});
        row("new original agrees with the edit", {u"set A=9"_qs, u"original A=9,B=2"_qs}, "A=9,B=2",
            {});
        row("new original under no edits", {u"original A=5,B=2"_qs}, "A=1,B=2", {u"A"_qs});
        row("new original brings what was removed", {u"remove B"_qs, u"original A=1,B=3"_qs}, "A=1",
            {u"B"_qs});
        row("values replace all", {u"set A=9"_qs, u"values B=2,D=4"_qs}, "B=2,D=4",
            {u"A"_qs, u"D"_qs});
        row("values equal to the original", {u"set A=9"_qs, u"values A=1,B=2"_qs}, "A=1,B=2", {});
    }
    void currentValuesFollowEveryStep()
    {
        QFETCH(QStringList, steps);
        QFETCH(QString, expected);
        QFETCH(QStringList, edited);
        EditedValues values(tags(u"A=1,B=2"_qs));
        for (const QString &step : std::as_const(steps)) {
            const QString verb = step.section(u' ', 0, 0), argument = step.section(u' ', 1);
            if (verb == u"set")
                values.set(argument.section(u'=', 0, 0), argument.section(u'=', 1));
            else if (verb == u"null")
                values.set(argument, QString());
            else if (verb == u"remove")
                values.remove(argument);
            else if (verb == u"original")
                values.setOriginal(tags(argument));
            else if (verb == u"values")
                values.setValues(tags(argument));
        }
        const TagDictionary want = tags(expected);
        QCOMPARE(values.values(), want);
        for (auto it = want.cbegin(); it != want.cend(); ++it) {
            QVERIFY(values.contains(it.key()));
            QCOMPARE(values.value(it.key()), it.value());
            // A null value read back as null, not as the original's or an empty one.
            const bool setNull =
                steps.contains(u"null "_qs + it.key()) && !values.original().contains(it.key());
            if (setNull)
                QVERIFY(values.value(it.key()).isNull());
        }
        for (const QString &key : {u"A"_qs, u"B"_qs, u"C"_qs, u"D"_qs, u"Z"_qs})
            QCOMPARE(values.contains(key), want.contains(key));
        QCOMPARE(sorted(values.changed().keys() + values.removed().values()), edited);
        QCOMPARE(values.isEdited(), !edited.isEmpty());
    }

    // What every record of a read holds alike stays held once: an edit does not copy the
    // original, and a file without edits gives the original itself.
    void editsDoNotCopyTheOriginal()
    {
        const TagDictionary read = tags(u"A=1,B=2"_qs);
        EditedValues values(read);
        QVERIFY(values.values().isSharedWith(read));
        values.set(u"A"_qs, u"9"_qs);
        QVERIFY(values.original().isSharedWith(read));
        values.set(u"A"_qs, u"1"_qs);
        QVERIFY(values.values().isSharedWith(read));
    }
};

QTEST_GUILESS_MAIN(TestEditedValues)
#include "tst_editedvalues.moc"
