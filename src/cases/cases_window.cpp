#include "cases/cases_window.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDate>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRandomGenerator>
#include <QSpinBox>
#include <QUrl>
#include <QVBoxLayout>
#include <sstream>

#include "cases/class_set.h"

namespace lw::cases {

CasesWindow::CasesWindow(std::string shippedFolder, std::string userRoot, QWidget* parent)
    : QDialog(parent), shippedFolder_(std::move(shippedFolder)), userRoot_(std::move(userRoot)) {
    setWindowTitle(QStringLiteral("Ledgerwick Practice Cases"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(QStringLiteral("Households to make (none ticked: every kind in turn):")));
    profiles_ = new QListWidget;
    profiles_->setObjectName(QStringLiteral("profiles"));
    profiles_->setMaximumHeight(170);
    profiles_->setAccessibleName(QStringLiteral("Profiles"));
    try {
        for (const Profile& profile : readProfiles(profileFileFor(shippedFolder_, userRoot_))) {
            auto* item = new QListWidgetItem(QString::fromStdString(profile.title));
            item->setData(Qt::UserRole, QString::fromStdString(profile.name));
            item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
            item->setCheckState(Qt::Unchecked);
            profiles_->addItem(item);
        }
    } catch (const std::exception& e) {
        profiles_->addItem(QString::fromStdString(e.what()));
    }
    layout->addWidget(profiles_);

    auto* form = new QFormLayout;
    count_ = new QSpinBox;
    count_->setObjectName(QStringLiteral("count"));
    count_->setRange(1, 500);
    count_->setValue(30);
    year_ = new QSpinBox;
    year_->setObjectName(QStringLiteral("year"));
    year_->setRange(2000, 2100);
    // The year whose returns are being prepared: last year until March.
    const QDate today = QDate::currentDate();
    year_->setValue(today.month() >= 3 ? today.year() : today.year() - 1);
    seed_ = new QLineEdit(QString::number(QRandomGenerator::global()->bounded(1, 1000000)));
    folder_ = new QLineEdit(QDir::home().filePath(QStringLiteral("Practice cases")));
    folder_->setObjectName(QStringLiteral("folder"));
    seed_->setObjectName(QStringLiteral("seed"));
    auto* browse = new QPushButton(QStringLiteral("Browse..."));
    connect(browse, &QPushButton::clicked, this, [this] { chooseFolder(); });
    auto* folderRow = new QHBoxLayout;
    folderRow->addWidget(folder_);
    folderRow->addWidget(browse);
    pdf_ = new QCheckBox(QStringLiteral("Also print each case to case.pdf"));
    form->addRow(QStringLiteral("Number of cases:"), count_);
    form->addRow(QStringLiteral("Tax year:"), year_);
    form->addRow(QStringLiteral("Seed (the same seed makes the same cases):"), seed_);
    form->addRow(QStringLiteral("Folder:"), folderRow);
    form->addRow(QString(), pdf_);
    layout->addLayout(form);

    progress_ = new QProgressBar;
    progress_->setObjectName(QStringLiteral("progress"));
    progress_->setValue(0);
    status_ = new QLabel;
    status_->setObjectName(QStringLiteral("status"));
    status_->setWordWrap(true);
    layout->addWidget(progress_);
    layout->addWidget(status_);
    auto* buttons = new QHBoxLayout;
    makeButton_ = new QPushButton(QStringLiteral("Make the cases"));
    openButton_ = new QPushButton(QStringLiteral("Open the folder"));
    makeButton_->setObjectName(QStringLiteral("make"));
    openButton_->setObjectName(QStringLiteral("open"));
    openButton_->setEnabled(false);
    auto* close = new QPushButton(QStringLiteral("Close"));
    connect(makeButton_, &QPushButton::clicked, this, [this] { make(); });
    connect(openButton_, &QPushButton::clicked, this,
            [this] { QDesktopServices::openUrl(QUrl::fromLocalFile(folder_->text())); });
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    buttons->addWidget(makeButton_);
    buttons->addWidget(openButton_);
    buttons->addStretch();
    buttons->addWidget(close);
    layout->addLayout(buttons);
    resize(560, 520);
}

void CasesWindow::chooseFolder() {
    const QString folder = QFileDialog::getExistingDirectory(this, QStringLiteral("Folder of the class set"),
                                                             folder_->text());
    if (!folder.isEmpty()) folder_->setText(folder);
}

void CasesWindow::make() {
    ClassSetOptions options;
    options.count = count_->value();
    options.year = year_->value();
    options.out = folder_->text().toStdString();
    options.pdf = pdf_->isChecked();
    bool seedRead = false;
    options.seed = seed_->text().trimmed().toULongLong(&seedRead);
    if (!seedRead) {
        status_->setText(QStringLiteral("The seed must be a whole number."));
        return;
    }
    for (int i = 0; i < profiles_->count(); ++i)
        if (profiles_->item(i)->checkState() == Qt::Checked)
            options.profiles.push_back(profiles_->item(i)->data(Qt::UserRole).toString().toStdString());
    makeButton_->setEnabled(false);
    openButton_->setEnabled(false);
    progress_->setRange(0, options.count);
    progress_->setValue(0);
    status_->setText(QStringLiteral("Making the cases..."));
    std::ostringstream log;
    try {
        ClassSet set(options, shippedFolder_, userRoot_);
        const int failed = set.make(log, [this](int done, int) {
            progress_->setValue(done);
            QCoreApplication::processEvents();
        });
        status_->setText(failed == 0 ? QStringLiteral("%1 cases and their answer key are in the folder.")
                                           .arg(options.count)
                                     : QStringLiteral("%1 of %2 cases could not be made:\n%3")
                                           .arg(failed)
                                           .arg(options.count)
                                           .arg(QString::fromStdString(log.str()).left(600)));
        openButton_->setEnabled(true);
    } catch (const ClassSetRefused& refused) {
        status_->setText(QString::fromStdString(refused.why));
    }
    makeButton_->setEnabled(true);
}

}  // namespace lw::cases
