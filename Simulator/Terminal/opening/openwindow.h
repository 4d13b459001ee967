#pragma once

#include "choicememory.h"
#include "openselection.h"
#include "recentfiles.h"

#include <QStringList>
#include <QWidget>

#include <functional>

class ChoicePage;
class FilePage;
class Machine;
class MessagePage;
class Pager;
class PreviewPage;
class ProductAdoption;
class ProgressPage;
class QSettings;
class QStackedLayout;
class TrackCheck;
class UnitPage;
struct LoadReport;

/// Where the operator opens prescriptions: looks for a file, sees what it holds, says which column feeds which product
/// and in which unit, and opens it. It lies over the display and is hidden at first.
class OpenWindow : public QWidget {
    Q_OBJECT

public:
    /// `machine`, `adoption` and `settings`, in which files and choices are remembered, are not owned and outlive the
    /// window.
    OpenWindow(Machine *machine, const ProductAdoption *adoption, QSettings &settings, QWidget *parent = nullptr);

    /// Offers a file, if it exists, to an operator who has none yet.
    void offerSample(const QString &path);
    /// Shows the files to choose from: the folder used last, else the recent files, else the home folder.
    void showFiles();
    /// Shows what may be opened in the folder where drives are recorded.
    void showRecords(const QString &folder);
    /// Shows what these files hold, one after the other; wants tracks among them replayed.
    void preview(const QStringList &paths);
    /// Shows why something that was wanted cannot be opened.
    void refuse(const QString &reason);
    /// Takes the report of a load that was wanted.
    void finish(const LoadReport &report);
    /// Waits until a track that was wanted is checked, with a page that shows how far it is if that takes long; false
    /// if the operator, or the end of the program, has ended that.
    bool await(TrackCheck &check, const QString &track);
    /// Remembers a track that was wanted and is being replayed, and goes on.
    void finishTrack(const QString &path);
    /// Goes back to the previous page; from the page of files out of the window.
    void goBack();
    /// Hides the window, and gives up what it was reading.
    void leave();
    /// Whether it waits for a file to be read.
    bool isBusy() const { return busy != Busy::No; }

Q_SIGNALS:
    /// The operator wants this loaded; finish() is to follow.
    void wanted(const OpenRequest &request);
    /// The operator wants this track replayed; await(), and if that is true, finishTrack() or refuse() are
    /// to follow.
    void trackWanted(const QString &path);
    /// What was wanted is loaded.
    void opened(const LoadReport &report);
    /// The operator wants this map closed.
    void closeWanted(const QString &group);
    /// It was shown or hidden.
    void shownChanged(bool isShown);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    enum class Busy { No, Surveying, Loading, ReadingTrack };

    void connectPages();
    void connectPreview();
    void showPage(QWidget *page);
    /// Goes back to where the file was taken from.
    void returnToFiles();
    void showProgress(const QString &text, Busy what);
    void survey(const QString &path, const QString &layer, const QString &task);
    void takeSurvey(const SurveyReport &survey);
    void showNext();
    void tell(const QString &reason, QWidget *behind);
    void giveUp();
    void accept();
    /// `closes`: groups of the maps to close then.
    void load(const QStringList &closes);
    bool pressFocused();
    void ask(const QString &question, const QStringList &options, int current, std::function<void(int)> answer);
    /// Asks which prescription of an archive is to be shown.
    void askArchived();
    void askLayer();
    void askTask();
    void askProduct(int index);
    void askUnit(int index);
    /// Asks for the unit of these columns, which do not tell any; the file is opened with the answer.
    void askUnits(const QList<int> &columns);
    /// Asks whether fields on other planes stay open; the file is opened with the answer.
    void askFarFields();
    void askOther();
    Pager *currentPager() const;

    Machine *machine;
    const ProductAdoption *adoption;
    RecentFiles recent;
    ChoiceMemory memory;
    QStackedLayout *pages;
    FilePage *files;
    PreviewPage *previews;
    ProgressPage *progress;
    MessagePage *message;
    ChoicePage *choice;
    UnitPage *unit;

    Busy busy = Busy::No;
    QStringList waiting; ///< Files to be shown after the present one.
    int surveys = 0;     ///< Surveys that were requested and have not ended; the last one counts.
    bool isGivenUp = false;
    TrackCheck *awaited = nullptr; ///< Not owned; null while no track is awaited.
    QStringList together; ///< Groups of the files that were wanted together with the one shown, and are already open.
    /// What was chosen for the file earlier, while its layer and task are being tried.
    std::optional<FileChoices> remembered;
    SurveyReport last;
    OpenSelection selection;
    QWidget *behindMessage = nullptr;
    std::function<void(int)> whenChosen;
    int askedColumn = 0;
    bool isOpening = false; ///< The operator wants the file opened once its units are known.
};
