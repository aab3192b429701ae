// SPDX-License-Identifier: MIT

#include "EveryForm.h"

#include "ControlFormFixture.h"
#include "common/system/File.h"
#include "ui/AboutForm/AboutForm.h"
#include "ui/App/PropertySheet.h"
#include "ui/App/SystemDialogs.h"
#include "ui/BatchForm/BatchForm.h"
#include "ui/BatchResultForm/BatchResultForm.h"
#include "ui/BrowserCapForm/BrowserCapForm.h"
#include "ui/NodeAddForm/NodeAddForm.h"
#include "ui/PrivateForm/PrivateForm.h"
#include "ui/ProgressForm/ProgressForm.h"
#include "ui/SlideForm/SlideForm.h"
#include "ui/SlideShowOptionForm/SlideShowOptionForm.h"

#include <QItemSelectionModel>
#include <QMessageBox>
#include <QPointer>
#include <QScopedValueRollback>

namespace ovisto::test {

using namespace Qt::StringLiterals;

namespace {

constexpr const char* kOrientation = "/JPEG/Exif[@id='FFE1']/IFD[@id='0112']";

/// Opens the forms, with copies of sample photographs, and has a look at each.
class Tour {
public:
    Tour(const FormLook& look, const std::string& dictionary) : m_look(look) { m_window.dictionary = dictionary; }

    void showEverything()
    {
        // Both end with a film, which the program can only delete.
        for (const char* name : {"night.jpg", "big-endian.jpg"}) {
            const std::string path = m_window.copy(name);
            writeTextFile(path, readTextFile(path) + "0000ftypmp42");
        }
        showMainWindow();
        showBrowserCapForm();
        showBatchForms();
        showProgressForm();
        showSlideForms();
        showAboutForm();
        showPropertySheet();
        showMessageBoxes();
    }

private:
    void look(const QString& name, QWidget& form)
    {
        QTest::qWait(0); // layouts are done
        m_look(name, form);
    }

    /// The same for a form that is not open yet.
    void open(const QString& name, QWidget& form)
    {
        form.show();
        form.activateWindow();
        if (!QTest::qWaitForWindowActive(&form))
            qFatal("%s does not come to the front", qPrintable(name));
        look(name, form);
    }

    /// Has a look at the dialog of this class that comes up, and closes it.
    template <class Form> void lookWhenOpen(const QString& name)
    {
        whenOpen<Form>([this, name](Form& form) {
            look(name, form);
            form.reject();
        });
    }

    void showMainWindow()
    {
        m_window.open({m_window.path("night.jpg")});
        m_window.select(kOrientation);
        look(u"ControlForm"_s, m_window.form());
        m_window.edit(kOrientation, u"77"_s); // which is no orientation
        look(u"ControlForm, changed"_s, m_window.form());
        m_window.trigger("menuFileReset");
        m_window.edit(kDescription, u"saved"_s);
        m_window.click("FileSaver");
        for (const char* option : {"menuDecodeThumb", "menuKeepUntouched"})
            m_window.trigger(option);
        look(u"ControlForm, saved"_s, m_window.form());
        for (const char* option : {"menuDecodeThumb", "menuKeepUntouched"})
            m_window.trigger(option);
        m_window.open({m_window.path("big-endian.jpg")});
        m_window.select(kThumbnail);
        m_window.click("ViewHexOpt");
        look(u"ControlForm, thumbnail"_s, m_window.form());
        m_window.open({m_window.path("night.jpg")});
        lookWhenOpen<NodeAddForm>(u"NodeAddForm"_s);
        m_window.click("NodeAdder");
        lookWhenOpen<PrivateForm>(u"PrivateForm"_s);
        m_window.trigger("menuPrivate");
        m_window.click("SlideShower");
        auto& options = *m_window.form().findChild<SlideShowOptionForm*>();
        open(u"SlideShowOptionForm"_s, options);
        options.reject();

        writeTextFile(m_window.path("diary.jpg"), "Dear diary");
        m_window.open({m_window.path("diary.jpg")});
        look(u"ControlForm, not a photograph"_s, m_window.form());
        m_window.open({m_window.path("none.jpg")});
        look(u"ControlForm, no photograph"_s, m_window.form());
        m_window.dialogs.taken();
    }

    void showBrowserCapForm()
    {
        ScanSettings scan;
        scan.FolderNameSelected = m_window.folder();
        scan.FilePattern = u"*.jpg;*.jpeg"_s;
        scan.SearchWords = u"lake, mountain"_s;
        BrowserCapForm form(scan, m_window.settings(), m_window.dialogs, nullptr);
        open(u"BrowserCapForm"_s, form);
    }

    void showBatchForms()
    {
        const TagDictionary Merovel(m_window.dictionary);
        FoundFiles files;
        files.append({m_window.path("night.jpg"), m_window.path("big-endian.jpg")});
        BatchForm batch(
            Merovel, true, [] { return Reading::Full; }, files, m_window.dialogs, nullptr);
        controlOf<QListWidget>(batch, "NodeList").setCurrentRow(3);
        controlOf<QLineEdit>(batch, "NodeValue").setText(u"value"_s);
        open(u"BatchForm"_s, batch);

        BatchResults results({{"/1.jpg", BatchOutcome::Failed, systemError(kPermissionDenied).description},
                              {"/2.jpg", BatchOutcome::NotReached},
                              {"/3.jpg", BatchOutcome::Unchanged},
                              {"/4.jpg", BatchOutcome::Changed}});
        BatchResultForm result(results, nullptr);
        open(u"BatchResultForm"_s, result);
    }

    void showProgressForm()
    {
        const QScopedValueRollback shownAtOnce(ProgressForm::shortestShow, 0);
        ProgressForm form(nullptr);
        form.step("/photographs/1.jpg", 3, 4);
        look(u"ProgressForm"_s, form);
    }

    /// A photograph, and one that is not there: what there is to say of each.
    void showSlideForms()
    {
        FoundFiles files;
        files.append({m_window.path("night.jpg"), m_window.path("none.jpg")});
        QItemSelectionModel selection(&files);
        for (const bool isThere : {true, false}) {
            const SlideSurroundings surroundings{files, selection, m_window.dialogs, m_window.settings()};
            QPointer<SlideForm> form = new SlideForm(surroundings, clockTimers(), nullptr);
            selection.setCurrentIndex(files.index(isThere ? 0 : 1), QItemSelectionModel::ClearAndSelect);
            form->SlideShow(!isThere, true, true, 30);
            QTest::keyClick(form.data(), Qt::Key_Space);
            const auto& image = controlOf<SlidePicture>(*form, "Image1");
            if (isThere && !QTest::qWaitFor([&] { return !image.picture().isNull(); }))
                qFatal("no slide");
            open(isThere ? u"SlideForm"_s : u"SlideForm, full screen"_s, *form);
            delete form;
        }
    }

    void showAboutForm()
    {
        AboutForm form(nullptr);
        // Without a program of the desktop that describes the computer.
        const QByteArray programs = qgetenv("PATH");
        qputenv("PATH", "/none");
        controlOf<QPushButton>(form, "SystemInfoShower").click();
        qputenv("PATH", programs);
        open(u"AboutForm"_s, form);
    }

    void showPropertySheet()
    {
        PropertySheet form(m_window.path("night.jpg"), nullptr);
        open(u"PropertySheet"_s, form);
    }

    void showMessageBoxes()
    {
        SystemDialogs dialogs;
        const auto lookAtBox = [this](const QString& name) {
            whenOpen<QMessageBox>([this, name](QMessageBox& box) {
                look(name, box);
                box.buttons().first()->click();
            });
        };
        lookAtBox(u"QMessageBox, failure"_s);
        dialogs.showFailure(u"/1.jpg"_s, u"/2.jpg"_s);
        lookAtBox(u"QMessageBox, long text"_s);
        dialogs.inform(u"/photographs/2018/12/31/at the lake/with friends/1.jpg\r\n"_s.repeated(40));
        lookAtBox(u"QMessageBox, question"_s);
        dialogs.ask(u"/1.jpg"_s);
        lookAtBox(u"QMessageBox, choice"_s);
        dialogs.choose(u"/1.jpg"_s, {u"/2.jpg"_s, u"/3.jpg"_s});
    }

    const FormLook& m_look;
    Window m_window;
};

} // namespace

void forEveryForm(const FormLook& look, const std::string& dictionary)
{
    Tour(look, dictionary).showEverything();
}

} // namespace ovisto::test
