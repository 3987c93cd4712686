// @ts-check
'use strict';

/** A film that is stepped image by image. */
class FilmBox {
    /** @param {FilmData} film */
    constructor(film) {
        this.film = film;
        this.count = film.images ?? 1;
        this.rate = film.cadence ?? 25;
        this.image = 0;
        this.video = element('video', { playsinline: true, preload: 'auto', 'aria-label': 'Film' });
        this.bar = element('input', { type: 'range', min: 0, max: this.count - 1, step: 1, value: 0, 'aria-label': 'Image du film', input: () => void this.seek(Number(this.bar.value)) });
        this.place = element('output', { class: 'image-du-film' });
        this.playButton = button('Lire', 'play', () => void this.toggle(), { class: 'principal' });
        const row = element('div', { class: 'boutons pas' },
            button('Au début', 'to-start', () => void this.seek(0)), button('Image précédente', 'back-step', () => void this.seek(this.image - 1)),
            this.playButton, button('Image suivante', 'step', () => void this.seek(this.image + 1)), button('À la fin', 'to-end', () => void this.seek(this.count - 1)));
        this.dialog = makeDialog('Film', 'film', this.video, this.bar, this.place, row);
        this.video.addEventListener('timeupdate', () => { if (!this.video.paused) this.show(Math.min(this.count - 1, Math.floor(this.video.currentTime * this.rate))); });
        this.video.addEventListener('pause', () => this.showState());
        this.video.addEventListener('play', () => this.showState());
        this.video.addEventListener('ended', () => this.show(this.count - 1));
        this.dialog.addEventListener('close', () => { this.video.pause(); this.dialog.remove(); if (this.address) URL.revokeObjectURL(this.address); });
        this.dialog.addEventListener('keydown', (/** @type {KeyboardEvent} */ event) => this.pressed(event));
    }

    async open() {
        this.dialog.showModal();
        this.show(0);
        this.video.addEventListener('error', () => { this.place.textContent = 'Ce navigateur ne sait pas lire ce film.'; });
        this.video.src = await this.source();
        await new Promise((resolve) => { this.video.addEventListener('loadeddata', resolve, { once: true }); });
        await this.seek(0);
    }

    /** Where a server gives no parts of files, browsers cannot seek: then the whole film is fetched. */
    async source() {
        const file = this.film.fichier ?? '';
        if (location.protocol === 'file:') return file;
        try {
            this.address = URL.createObjectURL(await (await fetch(file)).blob());
            return this.address;
        } catch {
            return file;
        }
    }

    /** @param {number} image */
    async seek(image) {
        this.video.pause();
        this.show(Math.max(0, Math.min(this.count - 1, image)));
        this.video.currentTime = (this.image + 0.5) / this.rate; // the middle of an image is surely in it
        await new Promise((resolve) => { this.video.addEventListener('seeked', resolve, { once: true }); });
    }

    async toggle() {
        if (!this.video.paused) return void this.seek(Math.floor(this.video.currentTime * this.rate));
        if (this.image >= this.count - 1) await this.seek(0);
        await this.video.play();
    }

    /** @param {number} image */
    show(image) {
        this.image = image;
        this.bar.value = image;
        this.place.textContent = `Image ${image + 1} sur ${this.count}`;
    }

    showState() {
        this.playButton.replaceChildren(icon(this.video.paused ? 'play' : 'pause'), element('span', {}, this.video.paused ? 'Lire' : 'Pause'));
    }

    /** @param {KeyboardEvent} event */
    pressed(event) {
        const step = { ArrowRight: 1, ArrowLeft: -1 }[event.key];
        if (step === undefined || event.target === this.bar) return;
        void this.seek(this.image + step);
        event.preventDefault();
    }
}
