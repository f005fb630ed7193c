#pragma once

class QBoxLayout;
class QDialog;
class QLabel;

// The foot of a small editing dialog: a line for what keeps OK from closing it (hidden until
// then, in the warning colour) and the OK and Cancel buttons, wired to accept and reject.
QLabel *addDialogFooter(QDialog *dialog, QBoxLayout *layout);
