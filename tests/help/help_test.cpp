#include <algorithm>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QDir>
#include <QFile>
#include <QPointer>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>
#include <QTextDocumentFragment>

#include "app/window/main_window.h"
#include "generate/construction.h"
#include "help/about_window.h"
#include "help/help_page.h"
#include "help/help_window.h"
#include "study/terms.h"
#include "toolkit/tr.h"

namespace numorra {
namespace {

void Write(const QString& path, const QByteArray& content) {
  QFile file(path);
  ASSERT_TRUE(file.open(QFile::WriteOnly));
  file.write(content);
}

class HelpTest : public testing::Test {
 protected:
  HelpTest() {
    EXPECT_TRUE(QDir(root_.path()).mkpath("program/nrhelp"));
    folder_ = root_.path() + "/program";
    Write(root_.path() + "/secret.txt", "secret");
    Write(root_.path() + "/program.txt", "secret beside the folder");
    Write(folder_ + "/nrhelp/more.htm", "<p>more</p>");
  }

  QTemporaryDir root_;
  QString folder_;
};

TEST_F(HelpTest, ReportsAMissingPageAndOneThatWouldTakeForEver) {
  EXPECT_EQ(HelpPageIn("/"), "/nrhelp.htm");
  for (const QByteArray& page :
       {QByteArray(), QByteArray(5 << 20, 'x'), QByteArray("<TABLE><tr><td>").repeated(20),
        QByteArray("< table><tr><td><!--</table>-->").repeated(20),
        QByteArray("<ul><li>").repeated(9000)}) {
    if (!page.isEmpty()) Write(folder_ + "/nrhelp.htm", page);
    const HelpForm form(folder_, nullptr);
    EXPECT_TRUE(form.wb1->toPlainText().contains("cannot be shown"));
    EXPECT_TRUE(form.wb1->toPlainText().contains(folder_ + "/nrhelp.htm"));
    EXPECT_EQ(form.windowTitle(), "Numorra Help");
  }
}

TEST_F(HelpTest, ShowsItsOwnFolderAndNothingElse) {
  Write(folder_ + "/nrhelp.htm", "<h1>Hello</h1>");
  QFile::link(root_.path() + "/secret.txt", folder_ + "/link.txt");
  HelpForm form(folder_, nullptr);
  EXPECT_EQ(form.wb1->toPlainText(), "Hello");
  for (const QString& link :
       {QString("../secret.txt"), QString("../program.txt"), QString("link.txt"),
        "file://" + root_.path() + "/secret.txt", QString("file:///etc/hostname"),
        QString("http://example.org/"), QString("nowhere.htm"), QString("qrc:/x"),
        QString("data:text/html,x"), QString("file://host/etc/passwd"),
        QString("%2e%2e/secret.txt")}) {
    form.wb1->setSource(QUrl(link));
    EXPECT_EQ(form.wb1->toPlainText(), "Hello") << link.toStdString();
    EXPECT_TRUE(form.wb1->loadResource(QTextDocument::HtmlResource, QUrl(link)).isNull())
        << link.toStdString();
  }
  form.wb1->setSource(QUrl("nrhelp/more.htm"));
  EXPECT_EQ(form.wb1->toPlainText(), "more");
}

QString PageText(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QFile::ReadOnly)) << path.toStdString();
  return QString::fromUtf8(file.readAll()).simplified();
}

/// The texts of all menu items and buttons of a window, by their object names.
std::map<QString, QString> Captions() {
  TickingClock clock(1);
  Session session(clock);
  const MainWindow window(session);
  std::map<QString, QString> captions;
  for (const QObject* object : window.findChildren<QObject*>()) {
    const QString text = object->property("text").toString().remove('&').remove("...");
    const bool named = !object->objectName().isEmpty() && !text.isEmpty();
    const bool pressed =
        qobject_cast<const QAction*>(object) || qobject_cast<const QAbstractButton*>(object);
    if (named && pressed) captions[object->objectName()] = text;
  }
  return captions;
}

/// The help page in the language of the run: every picture and link leads somewhere, every name
/// exists, and it tells of the constructions.
TEST(HelpPage, IsComplete) {
  const QString folder = QCoreApplication::applicationDirPath();
  const QString page = PageText(HelpPageIn(folder));
  EXPECT_EQ(HelpPageIn(folder) == folder + "/nrhelp.htm", Language().empty());
  int links = 0;
  QRegularExpression reference("(?:src|href)=\"([^\"]+)\"");
  for (const auto& match : reference.globalMatch(page)) {
    const QString target = match.captured(1);
    ++links;
    if (target.startsWith('#')) {
      EXPECT_TRUE(page.contains("name=\"" + target.mid(1) + "\"")) << target.toStdString();
    } else {
      EXPECT_TRUE(StandsIn(folder, QUrl::fromLocalFile(folder + "/" + target)))
          << target.toStdString();
    }
  }
  EXPECT_GT(links, 10);
  const QString text = QTextDocumentFragment::fromHtml(page).toPlainText();
  for (const Term& term : Terms())
    EXPECT_TRUE(text.contains('\n' + Tr(term.Name) + '\n')) << term.Name;
  for (const Construction* const construction : kConstructions) {
    const QString row = Tr(construction->Caption).remove('&') + '\n';
    const qsizetype at = text.indexOf('\n' + row);
    EXPECT_GE(at, 0) << construction->Term;
    EXPECT_GT(text.indexOf('\n' + Tr(construction->Source) + '\n', at), 0) << construction->Term;
  }
}

TEST(HelpPage, NamesWhatEnglishPlayersSee) {
  if (!Language().empty()) GTEST_SKIP() << "for the English page";
  const QString page = PageText(HelpPageIn(QCoreApplication::applicationDirPath()));
  const QString words =
      "Auto|Manual|Solve Again|4x4Set|Random|Limit to 9|Corners|Diagonals|Edges|Show|Cricles|"
      "Vectors|Clear|Print Solution|Set value to|mimimum value in grid|correct diagnonal|"
      "Swap value|Flip diagonal 1|Rotate 270d|Transpose|Redo last command|Backspace|Enter|F1|"
      "Space|green|red|LUX";
  for (const QString& word : words.split('|'))
    EXPECT_TRUE(page.contains(word)) << word.toStdString();
}

/// A page in another language has the parts of the English one, and calls what the window shows by
/// the names that the window has.
TEST(HelpPage, SaysInEveryLanguageWhatItSaysInEnglish) {
  if (Language().empty()) GTEST_SKIP() << "for pages in other languages";
  const QString folder = QCoreApplication::applicationDirPath();
  const QString english = PageText(folder + "/nrhelp.htm");
  const QString own = "nrhelp/" + QString::fromStdString(Language()) + "/";  // its pictures
  const QString page = PageText(HelpPageIn(folder)).replace(own, "nrhelp/");
  const auto parts = [](const QString& html) {
    QStringList found;
    QRegularExpression part(
        R"(</?(?:h\d|p|ul|ol|li|dl|dt|dd|table|tr|td|th)\b|(?:name|src|href)="[^"]*")");
    for (const auto& match : part.globalMatch(html))
      found << match.captured();
    return found;
  };
  const QStringList own_parts = parts(page), wanted = parts(english);
  const auto [differs, from] =
      std::mismatch(own_parts.begin(), own_parts.end(), wanted.begin(), wanted.end());
  EXPECT_TRUE(differs == own_parts.end() && from == wanted.end())
      << "part " << differs - own_parts.begin() + 1 << " is "
      << own_parts.mid(differs - own_parts.begin(), 3).join("> ").toStdString() << ", not "
      << wanted.mid(from - wanted.begin(), 3).join("> ").toStdString();
  const auto translated = Captions();
  const InEnglish scope;
  for (const auto& [name, caption] : Captions()) {
    if (caption.size() <= 3 || !english.contains(">" + caption + "<")) continue;
    EXPECT_TRUE(page.contains(translated.at(name), Qt::CaseInsensitive))
        << translated.at(name).toStdString() << " for " << caption.toStdString();
  }
}

TEST(About, ClosesByButtonTextAndEsc) {
  const auto closes = [](auto act) {
    auto* form = new AboutForm(nullptr);
    QPointer<AboutForm> alive(form);
    form->show();
    act(form);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return alive.isNull();
  };
  EXPECT_TRUE(closes([](AboutForm* f) { QTest::mouseClick(f->AboutOk, Qt::LeftButton); }));
  EXPECT_TRUE(closes([](AboutForm* f) { QTest::mousePress(f->AboutText, Qt::LeftButton); }));
  EXPECT_TRUE(closes([](AboutForm* f) { QTest::keyClick(f, Qt::Key_Escape); }));
  const AboutForm form(nullptr);
  EXPECT_EQ(form.AboutText->text(),
            "\nNumorra - Feb 2004\nQuestions and ideas are welcome:\nnumorra@example.org\n");
  EXPECT_EQ(form.Label1->text(), "Version 1.0");
  EXPECT_EQ(form.windowTitle(), "About Numorra");
  EXPECT_FALSE(form.Picture1->pixmap().isNull());
}

}  // namespace
}  // namespace numorra
