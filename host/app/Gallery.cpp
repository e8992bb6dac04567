#include "host/app/Gallery.h"

#include "dialogs/frame/tool/DialogDocument.h"
#include "host/app/Example.h"
#include "host/commands/Commands.h"
#include "host/document/HostDocument.h"
#include "host/ui/MainWindow.h"
#include "host/ui/Workspace.h"
#include "host/view/HostView.h"
#include "host/view/ViewWidget.h"
#include "model/element/Nodo.h"
#include "model/element/Trave.h"
#include "model/entity/Combinazione.h"
#include "platform/toolkit/Bridge.h"
#include "platform/window/Application.h"
#include "platform/window/Dialog.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

#include <cmath>
#include <cstdio>
#include <vector>

namespace host {

namespace {

struct Page {
    QString file; // without scale and extension
    QString caption;
};

QString FileNameOf(const QString& caption) {
    QString name;
    for (const QChar c : caption.toLower())
        name += c.unicode() < 128 && c.isLetterOrNumber() ? c : QChar('-');
    return name;
}

std::vector<Page> Pages() {
    std::vector<Page> all = {{"finestra-principale", "Finestra principale"},
                             {"finestra-prospetto", "Prospetto XZ"},
                             {"finestra-due-viste", "Due viste di un documento"}};
    for (const Command* each : Commands())
        all.push_back({FileNameOf(CaptionOf(*each)), CaptionOf(*each)});
    return all;
}

BatchStatus Fail(const QString& message) {
    std::fprintf(stderr, "quovar: %s\n", qPrintable(message));
    return notDone;
}

class Camera {
  public:
    explicit Camera(const QString& folder) : m_folder(folder) {}

    bool Take(QWidget& widget, const QString& file) {
        for (int i = 0; i < 3; ++i) // a layout may ask for another one
            CWinApp::PumpMessages();
        const int percent = static_cast<int>(std::lround(widget.devicePixelRatioF() * 100));
        const QString path = QStringLiteral("%1/%2-%3.png").arg(m_folder, file).arg(percent);
        return widget.grab().save(path) || Fail("impossibile scrivere " + path) == nothingFound;
    }

  private:
    QString m_folder;
};

// A modal dialog keeps control until it ends, so its picture is taken from within its loop.
bool TakeModal(Camera& camera, Workspace& workspace, const Command& command) {
    bool ok = false;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        QWidget* top = QApplication::activeModalWidget();
        CDialog* dialog = platform::DialogOf(top);
        if (!dialog)
            return;
        look.stop();
        ok = camera.Take(*top, FileNameOf(CaptionOf(command)));
        dialog->EndDialog(IDCANCEL);
    });
    look.start(10);
    workspace.Run(command);
    return ok;
}

// Says so when a dialog did not open; on the example each must, another model may lack what it works on.
bool Accept(bool taken, const Command& command, bool isExample) {
    if (!taken)
        Fail(QStringLiteral("la finestra \"%1\" non si apre").arg(CaptionOf(command)));
    return taken || !isExample;
}

bool TakeTool(Camera& camera, Workspace& workspace, const Command& command) {
    CDialog* dialog = workspace.Run(command);
    if (!dialog)
        return false;
    const bool taken = camera.Take(*platform::WidgetOf(*dialog), FileNameOf(CaptionOf(command)));
    workspace.Tools().End(dialog);
    return taken;
}

bool TakeTools(Camera& camera, Workspace& workspace, bool isExample) {
    bool ok = true;
    for (const Command* each : Commands())
        if (each->open)
            ok = Accept(TakeTool(camera, workspace, *each), *each, isExample) && ok;
    return ok;
}

bool TakeModals(Camera& camera, Workspace& workspace, bool isExample) {
    // What some of them need in order to open at all.
    HostDocument& document = workspace.ActiveView()->Document();
    const int currentCase = document.Data().CurrentCase();
    document.Selection().Clear();
    if (CTrave* beam = document.GetIndexTrave(0))
        document.Selection().Add(beam); // to divide a line takes just one
    else
        document.SelectAll();
    if (CCombinazione* combination = document.GetIndexCombinazione(0))
        document.SelectCasoCarico(combination->GetID());
    bool ok = true;
    for (const Command* each : Commands())
        if (each->run)
            ok = Accept(TakeModal(camera, workspace, *each), *each, isExample) && ok;
    document.Selection().Clear();
    document.SelectCasoCarico(currentCase);
    return ok;
}

bool RunAtScale(const std::string& program, const QString& folder, const std::string& model, const char* scale) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("QT_SCALE_FACTOR", scale);
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    QStringList arguments = {"--gallery-pictures", folder};
    if (!model.empty())
        arguments << QString::fromLocal8Bit(model.c_str());
    process.start(QString::fromStdString(program), arguments);
    return process.waitForFinished(120000) && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

bool WriteIndex(const QString& folder) {
    QFile file(folder + "/index.html");
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    QTextStream out(&file);
    out << "<!DOCTYPE html>\n<html lang=\"it\">\n<head>\n<meta charset=\"utf-8\">\n<title>Quovar: finestre</title>\n"
           "<style>\nbody { font-family: sans-serif; margin: 2em; background: #f4f5f7; }\n"
           "figure { margin: 0 0 2em; }\nimg { border: 1px solid #aab; max-width: 100%; }\n</style>\n</head>\n<body>\n"
           "<h1>Quovar: finestre</h1>\n";
    for (const Page& page : Pages()) {
        if (!QFile::exists(folder + "/" + page.file + "-100.png"))
            continue;
        out << "<figure>\n<figcaption><h2>" << page.caption.toHtmlEscaped() << "</h2></figcaption>\n<img src=\""
            << page.file << "-100.png\" srcset=\"" << page.file << "-200.png 2x\" alt=\""
            << page.caption.toHtmlEscaped() << "\">\n<p><a href=\"" << page.file << "-100.png\">100 %</a> <a href=\""
            << page.file << "-200.png\">200 %</a></p>\n</figure>\n";
    }
    out << "</body>\n</html>\n";
    out.flush();
    return out.status() == QTextStream::Ok && file.error() == QFile::NoError;
}

// Something to see in the windows about results: a model that is analysed, with a beam and a support selected.
void ShowResults(HostView& view) {
    HostDocument& document = view.Document();
    document.RunAnalysis();
    std::vector<CElemento*> chosen;
    if (CTrave* beam = document.GetIndexTrave(document.GetSizeTravi() - 1))
        chosen.push_back(beam);
    for (int i = 0; chosen.size() < 2 && i < document.GetSizeNodi(); ++i)
        if (document.GetIndexNodo(i)->GetReazioniVincolari())
            chosen.push_back(document.GetIndexNodo(i));
    document.Selection().Clear();
    document.Selection().Add(chosen);
}

} // namespace

BatchStatus WriteGallery(const std::string& program, const std::string& folder, const std::string& model) {
    const QString path = QString::fromLocal8Bit(folder.c_str());
    if (!QDir().mkpath(path))
        return Fail("impossibile creare la cartella " + path);
    for (const char* scale : {"1", "2"})
        if (!RunAtScale(program, path, model, scale))
            return Fail(QStringLiteral("le immagini in scala %1 non sono riuscite").arg(scale));
    if (!WriteIndex(path))
        return Fail("impossibile scrivere " + path + "/index.html");
    std::printf("%s/index.html\n", folder.c_str());
    return nothingFound;
}

BatchStatus WriteGalleryPictures(Workspace& workspace, const QString& folder, const QString& model) {
    if (!QDir().mkpath(folder))
        return Fail("impossibile creare la cartella " + folder);
    Camera camera(folder);
    MainWindow& window = workspace.Window();
    window.show();
    // From a file, because dialogs show its name in their captions.
    const QTemporaryDir scratch;
    const QString shown = model.isEmpty() ? scratch.filePath("edificio.asg") : model;
    if (model.isEmpty() && WriteExample(QFile::encodeName(shown).toStdString()) != nothingFound)
        return notDone;
    if (!workspace.Open(shown))
        return Fail("il progetto non si apre: " + shown);
    HostView& view = *workspace.ActiveView();
    bool ok = camera.Take(window, "finestra-principale");
    ShowResults(view);
    ok = TakeTools(camera, workspace, model.isEmpty()) && ok;
    ok = TakeModals(camera, workspace, model.isEmpty()) && ok;
    view.SetDirection(Adv3d::Front);
    ok = camera.Take(window, "finestra-prospetto") && ok;
    workspace.NewView(view.Document());
    window.Command("finestra.affianca")->trigger();
    ok = camera.Take(window, "finestra-due-viste") && ok;
    return ok ? nothingFound : notDone;
}

} // namespace host
