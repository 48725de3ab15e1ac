#pragma once

#include "look/ThemeColours.h"
#include "screen/ElidedText.h"

namespace trel::desktop {

/// A text that names a program, behind the sign that the program has in the week.
class ProgramName : public ElidedText
{
    Q_OBJECT

public:
    explicit ProgramName(QWidget* parent);
    ~ProgramName() override;

    /// By its index in the catalogue. Below 0 there is none, and the text stands alone.
    void setProgram(int progIndex);
    /// Those of the theme in force.
    void setColours(const look::ThemeColours& colours);

    /// Where the sign stands; empty without a program.
    QRect sign() const;

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void leaveRoom();

    look::ThemeColours m_colours;
    int m_program = -1;
};

} // namespace trel::desktop
