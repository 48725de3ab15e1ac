#pragma once

#include "CardOnScreen.h"
#include "HostFixture.h"

#include <QVector>

/// The editor with its real look, on a database filled with the demonstration, from the first click
/// to the saved file.
class EditorRun : public HostFixture
{
public:
    /// Pictures bear the name of the run and the language.
    EditorRun(const QString& name, const QString& language);

    /// The cards from top to bottom.
    QVector<CardOnScreen> cards() const;
    CardOnScreen card(int index) const { return cards().at(index); }
    QStringList lines() const;

    /// A button of the panel around the cards.
    void press(const char* button) const;
    /// Clicks on "add" until a task has come: the editor takes none in the first moment after it
    /// has filled its list.
    void addTask() const;
    void copyTask(int index) const;
    /// Closes the store and shows what the file holds.
    void openAgain();

    /// Keeps what a window shows, for people to look at.
    void picture(QWidget& shown, const QString& moment) const;
    void picture(const QString& moment) const { picture(*editor, moment); }

private:
    template <typename Step>
    void untilACardComes(Step step) const
    {
        const int before = cards().size();
        const auto hasCome = [&] {
            if (cards().size() == before) {
                step();
            }
            return cards().size() > before;
        };
        QTRY_VERIFY(hasCome());
    }

    QString m_name;
};
