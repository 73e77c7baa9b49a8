// The network of the update check, before a small server on this computer.
#include <map>
#include <set>
#include <string>
#include <vector>

#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <gtest/gtest.h>

#include "ui/style/qt_text.h"
#include "ui/updates/make_fetcher.h"
#include "update/update_answer.h"
#include "update/update_outcome.h"

namespace tricklet::ui {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds kEnough{20000};
constexpr milliseconds kLittle{50};

/// Answers each path with the bytes that are set for it, and others not at all.
class Site {
 public:
  Site() {
    EXPECT_TRUE(server_.listen(QHostAddress::LocalHost));
    QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] { Serve(); });
  }
  /// "http://127.0.0.1:PORT/PATH"
  std::string At(const std::string& path) const {
    return "http://127.0.0.1:" + std::to_string(server_.serverPort()) + "/" + path;
  }
  void Put(const std::string& path, const std::string& body) { Answer(path, "200 OK", body); }
  void Redirect(const std::string& path, const std::string& to) {
    Answer(path, "302 Found\r\nLocation: " + to, "");
  }
  void Answer(const std::string& path, const std::string& status, const std::string& body) {
    answers_["/" + path] = "HTTP/1.1 " + status + "\r\nSet-Cookie: who=you\r\nConnection: close" +
                           "\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
  }
  void Close() { server_.close(); }

  std::string heads;  ///< of all that was asked
  int connected = 0;

 private:
  void Serve() {
    QTcpSocket* socket = server_.nextPendingConnection();
    ++connected;
    QObject::connect(socket, &QTcpSocket::disconnected, &server_, [this] { --connected; });
    QObject::connect(socket, &QTcpSocket::readyRead, &server_, [this, socket] {
      if (!socket->peek(kLongestHead).contains("\r\n\r\n")) return;
      const std::string head = socket->readAll().toStdString();
      heads += head;
      const auto answer = answers_.find(head.substr(4, head.find(' ', 4) - 4));
      if (answer == answers_.end()) return;  // silence
      socket->write(QByteArray::fromStdString(answer->second));
      socket->disconnectFromHost();
    });
  }

  static constexpr qint64 kLongestHead = 10000;
  QTcpServer server_;
  std::map<std::string, std::string> answers_;
};

class NetworkFetcherTest : public testing::Test {
 protected:
  Fetched Ask(const std::string& address, milliseconds patience = kEnough) {
    const auto fetcher = MakeFetcher(patience);
    std::vector<Fetched> answers;
    fetcher->Fetch(address, [&](const Fetched& fetched) { answers.push_back(fetched); });
    EXPECT_TRUE(answers.empty()) << "before the call has returned";
    EXPECT_TRUE(QTest::qWaitFor([&] { return !answers.empty(); }, 30000)) << address;
    QTest::qWait(0);
    EXPECT_EQ(answers.size(), 1U) << address;
    return answers.empty() ? Fetched() : answers.front();
  }

  Site site;
};

TEST_F(NetworkFetcherTest, TellsOfThePersonNothingButTheProgram) {
  site.Put("new", "version=1.2.3\n");
  site.Redirect("old", site.At("new"));
  const Fetched fetched = Ask(site.At("old"));
  EXPECT_EQ(fetched.bytes, "version=1.2.3\n");
  EXPECT_EQ(fetched.failure, "");
  EXPECT_EQ(site.heads.find("Cookie"), std::string::npos);
  // All lines of both questions but the first.
  const std::set<std::string> allowed = {"Host",
                                         "User-Agent: Tricklet/" + RunningVersion(),
                                         "Accept-Language: *",
                                         "Accept-Encoding: identity",
                                         "Connection: Keep-Alive",
                                         "Cache-Control: no-cache",
                                         "Pragma: no-cache"};
  for (const QString& line : ToQt(site.heads).split(QStringLiteral("\r\n"), Qt::SkipEmptyParts)) {
    const std::string text = FromQt(line);
    EXPECT_TRUE(text.starts_with("GET /") || text.starts_with("Host: 127.0.0.1:") ||
                allowed.contains(text))
        << text;
  }
}

TEST_F(NetworkFetcherTest, FollowsOnlyWithinThisComputer) {
  Site other;
  other.Put("new", "found");
  site.Redirect("port", other.At("new"));
  EXPECT_EQ(Ask(site.At("port")).bytes, "found");

  site.Redirect("relative", "/port");
  EXPECT_EQ(Ask(site.At("relative")).bytes, "found");
  for (const std::string to :
       {"http://192.0.2.1/new", "https://192.0.2.1/new", "file:///etc/hostname",
        "http://user@127.0.0.1/", "ftp://127.0.0.1/new"}) {
    site.Redirect("away", to);
    const Fetched fetched = Ask(site.At("away"));
    EXPECT_EQ(fetched.bytes, "") << to;
    EXPECT_NE(fetched.failure, "") << to;
  }
  site.heads.clear();
  site.Redirect("loop", site.At("loop"));
  EXPECT_EQ(Ask(site.At("loop")).failure, "it redirects again and again");
  EXPECT_EQ(ToQt(site.heads).count(QStringLiteral("GET")), 6) << "once, and five times more";
}

TEST_F(NetworkFetcherTest, ReadsNoMoreThanAnAnswerMayHave) {
  site.Put("long", std::string(10 << 20, 'x'));
  const Fetched fetched = Ask(site.At("long"));
  EXPECT_GT(fetched.bytes.size(), kLongestAnswer);
  EXPECT_LT(fetched.bytes.size(), 2 * kLongestAnswer);
  EXPECT_EQ(OutcomeOf(fetched, "1.0.0").kind, UpdateOutcome::Kind::NotUnderstood);
}

TEST_F(NetworkFetcherTest, SaysWhyThereIsNoAnswer) {
  EXPECT_EQ(Ask(site.At("silent"), kLittle).failure, "it took too long");
  for (const std::string status : {"404 <b>Gone</b>", "503 Later", "401 Who?", "204 Nothing"}) {
    site.Answer("new", status, "");
    EXPECT_EQ(Ask(site.At("new")).failure, "the site answered with status " + status.substr(0, 3));
  }
  Site gone;
  const std::string address = gone.At("new");
  gone.Close();
  EXPECT_EQ(Ask(address).failure, "Connection refused");
}

TEST_F(NetworkFetcherTest, GivesUpWhatWasAskedBefore) {
  site.Put("new", "second");
  const auto fetcher = MakeFetcher(kEnough);
  std::vector<std::string> answers;
  const auto keep = [&](const Fetched& fetched) { answers.push_back(fetched.bytes); };
  fetcher->Fetch(site.At("silent"), keep);
  fetcher->Fetch(site.At("new"), keep);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !answers.empty(); }, 30000));
  EXPECT_EQ(answers, std::vector<std::string>{"second"});
}

TEST_F(NetworkFetcherTest, LeavesNothingRunning) {
  auto fetcher = MakeFetcher(kEnough);
  fetcher->Fetch(site.At("silent"), [](const Fetched&) { ADD_FAILURE() << "told afterwards"; });
  EXPECT_TRUE(QTest::qWaitFor([&] { return !site.heads.empty(); }, 30000));
  EXPECT_EQ(site.connected, 1);
  fetcher.reset();
  EXPECT_TRUE(QTest::qWaitFor([&] { return site.connected == 0; }));
}

}  // namespace
}  // namespace tricklet::ui
