#include <utility>

#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

#include "core/host.h"
#include "ui/style/qt_text.h"
#include "ui/updates/make_fetcher.h"
#include "update/update_address.h"
#include "update/update_answer.h"
#include "update/update_outcome.h"

namespace tricklet::ui {
namespace {

constexpr int kMostRedirects = 5;
constexpr int kStatusOk = 200;

QNetworkRequest RequestFor(const QUrl& url) {
  QNetworkRequest request(url);
  const QByteArray agent =
      QByteArray::fromStdString(std::string(kProgramName) + "/" + RunningVersion());
  request.setRawHeader("User-Agent", agent);
  // What is not said here Qt fills in: the language of the person, for one.
  request.setRawHeader("Accept-Language", "*");
  request.setRawHeader("Accept-Encoding", "identity");  // nothing grows by being unpacked
  request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                       QNetworkRequest::ManualRedirectPolicy);
  return request;
}

/// Why there is no file. What the site itself says of it is not repeated to the person.
std::string FailureOf(const QNetworkReply& reply, int status) {
  const QNetworkReply::NetworkError error = reply.error();
  const bool bySite = error == QNetworkReply::NoError ||
                      (error >= QNetworkReply::ContentAccessDenied &&
                       error <= QNetworkReply::UnknownContentError) ||
                      error >= QNetworkReply::InternalServerError;
  return bySite && status != 0 ? "the site answered with status " + std::to_string(status)
                               : FromQt(reply.errorString());
}

class NetworkFetcher : public QObject, public Fetcher {
 public:
  explicit NetworkFetcher(std::chrono::milliseconds patience) {
    patience_.setSingleShot(true);
    patience_.setInterval(patience);
    connect(&patience_, &QTimer::timeout, this, [this] { End({{}, "it took too long"}); });
  }
  ~NetworkFetcher() override { Stop(); }

  void Fetch(const std::string& address, std::function<void(const Fetched&)> done) override {
    Stop();
    done_ = std::move(done);
    redirects_ = 0;
    patience_.start();
    Get(QUrl(ToQt(address), QUrl::StrictMode));
  }

 private:
  /// Every question has a network of its own, and so has each address that it is redirected to: no
  /// thread, no cookie and no connection that the site may be closing outlasts the answer.
  void Get(const QUrl& url) {
    at_ = url;
    network_ = new QNetworkAccessManager(this);
    if (url.scheme() == QStringLiteral("http")) {
      network_->setProxy(QNetworkProxy::NoProxy);  // this computer is not asked by way of another
    }
    reply_ = network_->get(RequestFor(url));
    reply_->setReadBufferSize(static_cast<qint64>(kLongestAnswer) + 1);
    connect(reply_, &QNetworkReply::readyRead, this, &NetworkFetcher::Read);
    connect(reply_, &QNetworkReply::finished, this, &NetworkFetcher::Finish);
  }

  void Redirect(const QUrl& target) {
    const QUrl next = at_.resolved(target);
    const std::string shown = next.toEncoded().toStdString();
    if (!MayRedirect(at_.toEncoded().toStdString(), shown)) {
      End({{}, "it redirects to " + shown + ", which is not allowed"});
    } else if (++redirects_ > kMostRedirects) {
      End({{}, "it redirects again and again"});
    } else {
      PutAway();
      Get(next);
    }
  }

  void Read() {
    bytes_ += reply_->readAll().toStdString();
    if (bytes_.size() > kLongestAnswer) End({bytes_, {}});
  }

  void Finish() {
    bytes_ += reply_->readAll().toStdString();
    const int status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const QUrl target = reply_->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (!target.isEmpty()) {
      Redirect(target);
    } else if (reply_->error() == QNetworkReply::NoError && status == kStatusOk) {
      End({bytes_, {}});
    } else {
      End({{}, FailureOf(*reply_, status)});
    }
  }

  void End(const Fetched& fetched) {
    const auto done = std::move(done_);
    Stop();
    done(fetched);
  }

  void Stop() {
    patience_.stop();
    done_ = nullptr;
    if (network_ != nullptr) PutAway();
  }

  /// Gives the running question up. May be called within signals of what goes here.
  void PutAway() {
    reply_->disconnect(this);
    reply_->abort();
    network_->deleteLater();
    network_ = nullptr;
    reply_ = nullptr;
    bytes_.clear();
  }

  QUrl at_;  // where the question has been redirected to
  int redirects_ = 0;
  std::string bytes_;
  std::function<void(const Fetched&)> done_;
  QNetworkAccessManager* network_ = nullptr;  // only while something is being asked
  QNetworkReply* reply_ = nullptr;            // its only one
  QTimer patience_;
};

}  // namespace

std::unique_ptr<Fetcher> MakeFetcher(std::chrono::milliseconds patience) {
  return std::make_unique<NetworkFetcher>(patience);
}

}  // namespace tricklet::ui
