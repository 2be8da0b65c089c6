# The main targets: make run, make test. Missing packages are installed automatically.
JOBS ?= $(shell nproc)
RELEASE := build/release
export CMAKE_BUILD_PARALLEL_LEVEL := $(JOBS)

.PHONY: all run test test-fresh test-sanitize test-tsan test-arm64 bench-window bench-peers bench-many test-cluster test-container monkey fuzz reference reference-diff new-filter pictures translations mutate sbom install deb tarball test-package release screenshots movie bench bench-check bench-cores bench-formats bench-first-paint gallery format check-format setup clean

all: setup
	cmake --preset release >/dev/null
	cmake --build --preset release

setup:
	@scripts/setup.sh

run: all
	@scripts/run.sh $(RELEASE)/bin

test: all check-format
	ctest --test-dir $(RELEASE) --output-on-failure -j $(JOBS)

# make test on a Debian that has nothing but make: a scratch root with a clone of HEAD. Takes ten minutes; run it when packages.txt changes.
test-fresh:
	@scripts/test_fresh.sh

test-sanitize: setup
	cmake --preset sanitize >/dev/null
	cmake --build --preset sanitize
	ASAN_OPTIONS=detect_leaks=0:exitcode=99 UBSAN_OPTIONS=print_stacktrace=1:exitcode=99 ctest --test-dir build/sanitize --output-on-failure -j $(JOBS)

# The rooms without windows, and the frame with its road, under the thread sanitizer; builds just those. No finding in our own
# code is suppressed. Long: an hour on two busy cores.
test-tsan: setup
	cmake --preset tsan >/dev/null
	nice -n 10 cmake --build --preset tsan --parallel 2 --target tests_of_threads
	nice -n 10 ctest --test-dir build/tsan --output-on-failure -j 2 -L threads

# The kernels on arm64, cross-compiled, by qemu; says so where a tool for that is missing.
test-arm64:
	@scripts/test_arm64.sh

# Random actions on the whole editor under the sanitizers for MONKEY_S seconds, on a new seed each time; VELARA_SEED=N repeats
# a run. The editor can write nothing outside of its scratch folder.
MONKEY_S ?= 120
monkey: setup
	cmake --preset sanitize >/dev/null
	cmake --build --preset sanitize --target velara-monkey
	ASAN_OPTIONS=detect_leaks=0:exitcode=99 UBSAN_OPTIONS=print_stacktrace=1:exitcode=99 \
	    build/sanitize/bin/velara-monkey --seconds $(MONKEY_S)

# Damaged pictures, sequences of operations, configurations and region words for FUZZ_S seconds, on a new seed each time;
# inputs of faults stay in build/fuzz. make fuzz FUZZ_S=3600 SUBJECTS="pictures regions"
FUZZ_S ?= 60
fuzz: all
	$(RELEASE)/bin/velara-fuzz --warm --seconds $(FUZZ_S) --seed $$(date +%s)000 --keep build/fuzz $(SUBJECTS) \
	    --samples "$$(sed -n 's/^CORPUS:PATH=//p' $(RELEASE)/CMakeCache.txt)"

# Brings translations/*.ts up to date with the texts of the code, and says what is not translated.
translations: setup
	cmake --preset release >/dev/null
	cmake --build --preset release --target translations
	@scripts/check_translations.py --count

screenshots: all
	cmake --build --preset release --target screenshots
	@scripts/screenshots.sh $(RELEASE)/bin docs/screenshots
# The moving picture of the README
movie: all
	@scripts/movie.sh $(RELEASE)/bin docs/pictures/movie.webp

bench: all
	$(RELEASE)/bin/velara-bench

# Reading and writing whole files beside the plain programs of the same libraries, those that are installed.
SAMPLE ?= docs/gallery/filters.png
PHOTOS ?= $(SAMPLE)
bench-formats: all
	@scripts/bench_formats.py $(RELEASE)/bin --sample $(SAMPLE) --photos $(PHOTOS)

# From the start of the program until a photograph is on the screen, beside eog and gthumb: make bench-first-paint RUNS=9 FORMATS="heic jpg"
RUNS ?= 7
FORMATS ?= heic jpg
bench-first-paint: all
	@scripts/bench_first_paint.sh $(RELEASE)/bin $(RUNS) $(FORMATS)

# Fails when a row is worse than bench/baseline.json by more than 15 % in three tries; for a machine at rest.
bench-check: all
	@scripts/bench_check.py $(RELEASE)/bin/velara-bench

# What part of one thread's time all cores take, by calling pattern, into docs/speed.md; for a machine at rest.
bench-cores: all
	@scripts/bench_cores.py $(RELEASE)/bin/velara-bench --into docs/speed.md

# The same work by OpenCV, libvips, gm and convert, those that are installed, and the growth with the picture, into docs/speed.md.
bench-peers: all
	@/usr/bin/python3 scripts/bench_peers.py $(RELEASE)/bin --into docs/speed.md

# For how long the window's thread is busy at a time, a row a command word: make bench-window SIZE=16000x8000 WORDS="UNDO 50"
SIZE ?= 6000x4000
bench-window: all
	QT_QPA_PLATFORM=offscreen $(RELEASE)/bin/velara-busy --size $(SIZE) $(WORDS)

# Pictures a second of velara-batch with many, beside other programs: make bench-many PICTURES=1000 ROUNDS=3 SMALL=10000
PICTURES ?= 40
ROUNDS ?= 3
SMALL ?= 2000
bench-many: all
	@scripts/bench_many.sh $(RELEASE)/bin $(PICTURES) $(ROUNDS) $(SMALL)

# What docs/manual/many.md says of several machines, on this one: GNU parallel over ssh, a Slurm cluster of one node, a pod of
# Kubernetes' Indexed Job as a sandbox. Installs what is missing for that; needs root.
test-cluster: all
	@scripts/test_cluster.sh $(RELEASE)/bin

# The image of packaging/kubernetes and its job, without a container engine; needs root.
test-container: deb
	@scripts/test_container.sh $(RELEASE)

# The contact sheets of docs/gallery: every filter on the sample picture.
gallery: all
	cmake --build --preset release --target velara-gallery
	$(RELEASE)/bin/velara-gallery docs/gallery

# The rows of a filter with a dialog, as docs/architecture.md has them: make new-filter NAME=Posterize
new-filter:
	@scripts/ways.py --new-filter "$(NAME)"

# Draws the diagrams of docs/architecture.md from their text.
pictures:
	@for text in docs/pictures/*.dot; do dot -Tsvg "$$text" -o "$${text%.dot}.svg" || exit 1; done

# Writes the checksums of the definitions of tools/reference for the tests; and shows where the fast code differs:
# make reference-diff NAMES="EMBOSS Brush"
reference:
	cmake --build --preset release --target velara-reference
	$(RELEASE)/bin/velara-reference --write tests

reference-diff:
	cmake --build --preset release --target velara-reference
	$(RELEASE)/bin/velara-reference --diff $(NAMES)

# One-line faults (tests/mutations.txt) that the tests must catch: all of them take half an hour; make mutate NAMES="undo jpeg"
mutate: setup
	@scripts/mutate.py $(NAMES)

# What the programs are linked with, by version, as an SPDX document: build/velara-studio.spdx.json
PROGRAMS := velara-studio velara-batch velara-batch-all velara-open velara-decode velara-encode velara-scan
sbom: all
	@scripts/sbom.py $(RELEASE)/bin $(PROGRAMS) > build/velara-studio.spdx.json
	@echo build/velara-studio.spdx.json

# make install PREFIX=/usr DESTDIR=/somewhere. User data of installed programs lies in the folders of the desktop.
PREFIX ?= /usr/local
install: all
	cmake --preset release -DCMAKE_INSTALL_PREFIX=$(PREFIX) >/dev/null
	cmake --build --preset release --target packaging
	DESTDIR=$(DESTDIR) cmake --install $(RELEASE) --strip

# What is given away: a Debian package, an archive that runs from any folder of a Debian 12, and with make release also the
# list of what they are linked with, and checksums; all in build/release/dist.
deb: all
	@packaging/make_deb.sh $(RELEASE)

tarball: all
	@packaging/make_tarball.sh $(RELEASE)

release: deb tarball sbom
	@packaging/make_release.sh $(RELEASE) build/velara-studio.spdx.json

# The package in a fresh Debian: installed, started by an ordinary user, a picture changed and saved, removed without a trace.
test-package: deb
	@packaging/test_package.sh $(RELEASE)

SOURCES = $(shell git ls-files -co --exclude-standard 'src/*.cpp' 'src/*.h' 'tests/*.cpp' 'tests/*.h' 'bench/*.cpp' 'bench/*.h' 'tools/*.cpp' 'tools/*.h')
format:
	@clang-format -i $(SOURCES)

check-format:
	@clang-format --dry-run --Werror $(SOURCES)

clean:
	rm -rf build
