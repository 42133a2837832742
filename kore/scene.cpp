// SPDX-License-Identifier: MIT
#include "kore/scene.h"

#include <GL/gl.h>
#include <algorithm>
#include <utility>

namespace kore {

namespace {

/// The default preparation of a scene.
class DefaultPrepare final : public ScenePrepare {};

} // namespace

Scene::Scene(std::string const& name) : my_name(name), prepare(std::make_shared<DefaultPrepare>()) {}

void Scene::AddEnabler(std::shared_ptr<Enabler> e) {
    length = std::max(length, e->GetStartBeat() + e->GetLength());
    enablers.push_back(std::move(e));
}

void Scene::AddCamera(std::shared_ptr<Enabler> e) { camera = std::move(e); }

void Scene::SetPrepare(std::shared_ptr<ScenePrepare> p) { prepare = std::move(p); }

void Scene::UpdateLogic(StateData const& state) {
    camera->UpdateLogic(state);
    for (auto const& enabler : enablers) enabler->UpdateLogic(state);
}

void Scene::Draw(bool const& useCamera) {
    glPushMatrix();
    prepare->Draw();
    if (useCamera) camera->Draw(useCamera);
    for (auto const& enabler : enablers) enabler->Draw(true);
    glPopMatrix();
    for (auto const& enabler : enablers) enabler->Draw(false);
}

} // namespace kore
