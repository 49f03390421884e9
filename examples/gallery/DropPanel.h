#pragma once

#include <functional>
#include <string>

#include "Src/HXUI/HXPanel.h"

/// Takes files that are dropped onto it. Owned by its parent.
class DropPanel : public HXPanel {
 public:
  /// `writeLine` hears of the name of each file.
  DropPanel(HXObject* parent, HXPoint position, HXSize size,
            std::function<void(const std::string&)> writeLine);

  /// What was dropped last; empty at first.
  const std::string& GetPath() const { return path; }

  void Draw() override;
  bool OnDropFile(const char* droppedPath) override;

 private:
  std::function<void(const std::string&)> write;
  std::string path;
};
