#pragma once

// Records a screen reader's announcements during its lifetime.

#include <QObject>
#include <QWidget>
#include <string>
#include <vector>

#include "toolkit/application.h"
#include "toolkit/text.h"

namespace quillon {

class HeardAnnouncements : public QObject {
 public:
  HeardAnnouncements() {
    connect(&dynamic_cast<Application&>(*qApp), &Application::Announced, this,
            [this](QWidget* /*speaker*/, const QString& text) { texts_.push_back(LinesFromQt(text)); });
  }

  [[nodiscard]] const std::vector<std::string>& Texts() const { return texts_; }

 private:
  std::vector<std::string> texts_;
};

}  // namespace quillon
