#pragma once

#include "EndStage.h"

#include <QString>

#include <functional>
#include <map>

class QAbstractButton;
class QTimeEdit;

/// What an operator does on the stage.
using Input = std::function<void(Stage&)>;

/// This one clicks on the list itself, which has to outlive the click.
inline const QString kPressOnList = QStringLiteral("list clicked while typing");

/// What brings a refusal or a question, by its name.
const std::map<QString, Input>& promptInputs();

void click(QAbstractButton& button);
Input clickInCard(const char* name);
Input clickInPanel(const char* name);

/// Leaves an hour half typed, which becomes a time that is refused as soon as it is taken over.
QTimeEdit& typeHalfAnHour(Stage& stage);
