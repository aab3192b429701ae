// SPDX-License-Identifier: MIT

#include "ui/AboutForm/AboutForm.h"

#include "common/Libraries.h"
#include "ui/App/Text.h"

#include <QApplication>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>
#include <QSysInfo>
#include <QThread>

namespace ovisto {

namespace {

/// The programs with which desktops describe the computer.
constexpr struct {
    const char* program;
    const char* argument;
} kSystemTools[] = {{"kinfocenter", ""}, {"gnome-control-center", "info-overview"}, {"hardinfo", ""}};

bool startSystemTool()
{
    for (const auto& tool : kSystemTools) {
        const QString program = QStandardPaths::findExecutable(QString::fromLatin1(tool.program));
        if (!program.isEmpty())
            return QProcess::startDetached(
                program, QString::fromLatin1(tool.argument).split(QLatin1Char(' '), Qt::SkipEmptyParts));
    }
    return false;
}

/// What the window is made of, each library with its version.
QStringList libraryNames()
{
    QStringList names{QStringLiteral("Qt ") + QString::fromLatin1(qVersion())};
    for (const Library& library : engineLibraries())
        names << QString::fromStdString(library.name + " " + library.version);
    return names;
}

} // namespace

AboutForm::AboutForm(QWidget* owner) : QDialog(owner)
{
    ui.setupUi(this);
    QFont large = ui.Title->font();
    large.setPointSizeF(1.8 * large.pointSizeF());
    large.setBold(true);
    ui.Title->setFont(large);
    constexpr int kIconSize = 64;
    ui.Icon->setPixmap(QApplication::windowIcon().pixmap(kIconSize));
    ui.Icon->setVisible(!QApplication::windowIcon().isNull());
    ui.Version->setText(tr("Version %1").arg(QString::fromLatin1(programVersion())));
    ui.Libraries->setText(tr("Made with %1.").arg(listed(libraryNames())));
    ui.FormCloser->setFocus();
    connect(ui.FormCloser, &QPushButton::clicked, this, &AboutForm::accept);
    connect(ui.SystemInfoShower, &QPushButton::clicked, this, &AboutForm::showSystemInfo);
}

void AboutForm::showSystemInfo()
{
    if (startSystemTool())
        return;
    QStringList lines;
    lines
        << tr("System: %1").arg(QSysInfo::prettyProductName())
        << tr("Kernel: %1 %2").arg(QSysInfo::kernelType(), QSysInfo::kernelVersion())
        << tr("Computer: %1").arg(QSysInfo::machineHostName())
        << tr("Processor: %1, %Ln cores", nullptr, QThread::idealThreadCount()).arg(QSysInfo::currentCpuArchitecture())
        << tr("Window system: %1").arg(QGuiApplication::platformName());
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QSize size = screen->size() * screen->devicePixelRatio();
        lines << tr("Screen: %1 x %2").arg(size.width()).arg(size.height());
    }
    ui.SystemInfo->setPlainText(lines.join(QLatin1Char('\n')));
    ui.SystemInfo->show();
    adjustSize();
    ui.SystemInfo->setFocus();
}

} // namespace ovisto
