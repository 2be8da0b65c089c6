// Texts put on a picture, as a step: TEXT(Text,Font,Size,Style,Colour,Corner,Across,Down,Width,Height).
#pragma once
#include "commands/recipe/RecipeStep.h"
#include "text/Layers.h"

namespace velara {

/// For --list and help. It can't be called by the engine, which has no fonts: parseTextStep makes its steps.
const Operation& textOperation();

/// The step of a text as written and its arguments, which may be there several times: each is a text, and all of them
/// are merged at once, as "Apply Text" does. Throws StepFault.
RecipeStep parseTextStep(const QString& text, const QStringList& arguments);

/// The step that merges these layers, hidden ones left out; empty where nothing is shown or no line can hold it. A font
/// that isn't there is named by what stood in for it.
QString textWords(const Layers::State& layers, Fonts& fonts);

} // namespace velara
