#include "shell/screens/web_client.h"

#include <QEventLoop>
#include <QFutureWatcher>
#include <QPromise>
#include <memory>
#include <utility>

#include "shell/http_get.h"
#include "toolkit/input_block.h"

namespace quillon {

std::string WaitForHttp(std::string_view address, std::chrono::milliseconds limit) {
  const InputBlock block;
  QEventLoop loop;
  QFutureWatcher<std::string> watcher;
  QObject::connect(&watcher, &QFutureWatcher<std::string>::finished, &loop, &QEventLoop::quit);

  const auto reply = std::make_shared<QPromise<std::string>>();
  reply->start();
  watcher.setFuture(reply->future());
  HttpGet(address, limit, [reply](std::string body) {
    reply->addResult(std::move(body));
    reply->finish();
  });
  loop.exec();
  // Quitting the program ends every loop.
  return watcher.isFinished() ? watcher.result() : std::string();
}

}  // namespace quillon
