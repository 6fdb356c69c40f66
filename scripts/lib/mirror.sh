# Sourced: the release of this machine's Debian, and the mirror that its apt takes it from.
release=$(. /etc/os-release && echo "${VERSION_CODENAME:-}")
mirror=$(apt-get indextargets --format '$(CODENAME) $(COMPONENT) $(REPO_URI)' 'Created-By: Packages' |
  awk -v codename="$release" '$1 == codename && $2 == "main" { print $3; exit }')
