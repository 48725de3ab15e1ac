#pragma once

#include <QFrame>

#include <memory>

namespace Ui {
class kCustomLineEdit;
}

namespace trel::mediadispatch {

/// The field that shows and picks the programs of one plan row. It looks like a line of text with
/// an add button, and both halves are buttons: a press on either asks for the programs.
class kCustomLineEdit : public QFrame
{
    Q_OBJECT

public:
    explicit kCustomLineEdit(QWidget* parent = nullptr);
    ~kCustomLineEdit() override;

    /// Shows a text, cut with an ellipsis when it is 134 pixels wide or more, and as it is when it
    /// has room. The cut text is written back into text; the field keeps no other. An ampersand is
    /// shown as one and opens no shortcut.
    void setText(QString& text);
    /// The text shown.
    QString text() const;

    /// The row of the plan table that the field stands in; it goes out with signalClicked.
    void setRow(int row) { m_row = row; }
    int row() const { return m_row; }

public slots:
    /// Emits signalClicked, then shows the text that the service holds as the selected programs: a
    /// receiver picks them and hands the text over before it returns. Answers signals only; a
    /// direct call does nothing.
    void slotClicked();

signals:
    /// A half of the field has been pressed.
    void signalClicked(int row);

private:
    std::unique_ptr<Ui::kCustomLineEdit> m_ui;
    int m_row = -1;
};

} // namespace trel::mediadispatch
