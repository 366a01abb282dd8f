#pragma once
// The window of ledgerwick-cases: the profiles to tick, the count, the year, the seed and the folder.

#include <QDialog>
#include <string>

class QCheckBox;
class QLineEdit;
class QListWidget;
class QProgressBar;
class QPushButton;
class QSpinBox;
class QLabel;

namespace lw::cases {

class CasesWindow : public QDialog {
public:
    CasesWindow(std::string shippedFolder, std::string userRoot, QWidget* parent = nullptr);

private:
    void make();
    void chooseFolder();

    std::string shippedFolder_;
    std::string userRoot_;
    QListWidget* profiles_;
    QSpinBox* count_;
    QSpinBox* year_;
    QLineEdit* seed_;
    QLineEdit* folder_;
    QCheckBox* pdf_;
    QProgressBar* progress_;
    QLabel* status_;
    QPushButton* makeButton_;
    QPushButton* openButton_;
};

}  // namespace lw::cases
