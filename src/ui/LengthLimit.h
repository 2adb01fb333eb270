#pragma once

class QComboBox;
class QLineEdit;

namespace lingomat {

class Prompts;

// Keep what is typed or pasted to the size of its field: a longer text is cut with a beep and the caret goes
// to its end. (The toolkit's own limit would swallow the rest without a sound.) Lengths are UTF-16 units.

void limitLength(QLineEdit& box, int length, Prompts& prompts);
void limitLength(QComboBox& box, int length, Prompts& prompts); ///< an editable one

} // namespace lingomat
