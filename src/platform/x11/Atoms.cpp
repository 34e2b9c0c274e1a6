#include "platform/x11/Atoms.h"

#include "platform/x11/Handles.h"

namespace tessarin::x11 {

xcb_atom_t Atoms::atom(const std::string& name) {
  return atoms({name}).front();
}

std::vector<xcb_atom_t> Atoms::atoms(const std::vector<std::string>& names) {
  std::unordered_map<std::string, xcb_intern_atom_cookie_t> asked;
  for (const auto& name : names) {
    if (atoms_.contains(name) || asked.contains(name)) continue;
    asked[name] = xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.data());
  }
  for (const auto& [name, cookie] : asked) {
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection_, cookie, nullptr));
    if (!reply) continue;
    atoms_[name] = reply->atom;
    names_[reply->atom] = name;
  }
  std::vector<xcb_atom_t> result;
  for (const auto& name : names) {
    const auto found = atoms_.find(name);
    result.push_back(found == atoms_.end() ? xcb_atom_t{XCB_ATOM_NONE} : found->second);
  }
  return result;
}

std::string Atoms::name(xcb_atom_t atom) {
  return names({atom}).front();
}

std::vector<std::string> Atoms::names(const std::vector<xcb_atom_t>& atoms) {
  std::unordered_map<xcb_atom_t, xcb_get_atom_name_cookie_t> asked;
  for (const xcb_atom_t atom : atoms) {
    if (names_.contains(atom) || asked.contains(atom)) continue;
    asked[atom] = xcb_get_atom_name(connection_, atom);
  }
  for (const auto& [atom, cookie] : asked) {
    xcb_generic_error_t* error = nullptr;
    const Owned<xcb_get_atom_name_reply_t> reply(xcb_get_atom_name_reply(connection_, cookie, &error));
    const Owned<xcb_generic_error_t> noSuchAtom(error);
    if (!reply) continue;
    const std::string name(xcb_get_atom_name_name(reply.get()),
                           static_cast<std::size_t>(xcb_get_atom_name_name_length(reply.get())));
    names_[atom] = name;
    atoms_[name] = atom;
  }
  std::vector<std::string> result;
  for (const xcb_atom_t atom : atoms) {
    const auto found = names_.find(atom);
    result.push_back(found == names_.end() ? std::string() : found->second);
  }
  return result;
}

}  // namespace tessarin::x11
