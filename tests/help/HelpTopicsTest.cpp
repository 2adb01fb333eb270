#include "HelpTopics.h"

#include <QComboBox>
#include <QDialog>
#include <QDirIterator>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lingomat {
namespace {

TEST(HelpTopics, AWindowHasItsPage) {
    EXPECT_EQ(helpPageFor(QStringList({u"Form2"_s})), u"selection.html"_s);
    EXPECT_EQ(helpPageFor(QStringList({u"nameless"_s, u"Form2"_s})), u"selection.html"_s);
    EXPECT_EQ(helpPageFor(QStringList({u"Unknown"_s})), QString());
    EXPECT_EQ(helpPageFor(QStringList()), QString());
}

TEST(HelpTopics, AControlWithAPageOfItsOwnDecides) {
    EXPECT_EQ(helpPageFor(QStringList({u"MinScore"_s, u"picScore"_s, u"body"_s, u"Form2"_s})),
              u"selection.html#score"_s);
    EXPECT_EQ(helpPageFor(QStringList({u"inside"_s, u"frmListboxes"_s, u"Form2"_s})),
              u"selection.html#pairs"_s);
    EXPECT_EQ(helpPageFor(QStringList({u"picScore"_s, u"Liste"_s})), u"list.html"_s)
        << "a name counts in its own window only";
}

TEST(HelpTopics, ABoxTakesThePageOfItsWindow) {
    QDialog form;
    form.setObjectName(u"frmOptions"_s);
    QDialog box(&form);
    box.setObjectName(u"MessageBox"_s);
    QLineEdit field(&box);
    EXPECT_EQ(helpPageFor(&field), u"options.html"_s);
    QDialog alone;
    EXPECT_EQ(helpPageFor(&alone), u"contents.html"_s);
    EXPECT_EQ(helpPageFor(static_cast<const QWidget*>(nullptr)), u"contents.html"_s);
}

TEST(HelpTopics, AListThatDroppedDownBelongsToItsForm) {
    QDialog form;
    form.setObjectName(u"NeueRelation"_s);
    QComboBox box(&form);
    box.addItem(u"one"_s);
    EXPECT_EQ(helpPageFor(reinterpret_cast<QWidget*>(box.view())), u"newreference.html"_s);
}

TEST(HelpTopics, AMenuSpeaksForTheEntryThatIsMarked) {
    QWidget form;
    form.setObjectName(u"Form1"_s);
    QMenu menu(&form);
    QAction* entry = menu.addAction(u"Print"_s);
    entry->setObjectName(u"Datei_Drucken"_s);
    EXPECT_EQ(helpPageFor(&menu), u"main.html"_s);
    menu.setActiveAction(entry);
    EXPECT_EQ(helpPageFor(&menu), u"printing.html"_s);
}

/// Names of the classes of the program that are windows.
QStringList windowClasses() {
    static const QRegularExpression declaration(
        u"\\bclass (\\w+) (?:final )?: public Q(?:Dialog|MainWindow)\\b"_s);
    QStringList names;
    QDirIterator files(QStringLiteral(LINGOMAT_SOURCES), {u"*.h"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        auto found = declaration.globalMatch(QString::fromUtf8(file.readAll()));
        while (found.hasNext())
            names.append(found.next().captured(1));
    }
    return names;
}

TEST(HelpTopics, EveryWindowOfTheProgramHasAPage) {
    const QStringList classes = windowClasses();
    ASSERT_GE(classes.size(), 15);
    for (const QString& name : classes)
        EXPECT_NE(helpPageFor(QStringList({name})), QString()) << name.toStdString();
}

} // namespace
} // namespace lingomat
